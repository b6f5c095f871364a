#version 440

layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(binding = 1) uniform sampler2D source;

layout(std140, binding = 0) uniform Block {
    mat4 qt_Matrix;
    float qt_Opacity;
    vec2 delta;
};

// In pixels, on either side.
const int reach = 9;
const float deviation = 4.0;

// One direction of a bell-shaped blur: a pass over its result with the other direction makes it round.
void main()
{
    vec4 sum = vec4(0.0);
    float weights = 0.0;
    for (int i = -reach; i <= reach; ++i) {
        float weight = exp(-0.5 * float(i * i) / (deviation * deviation));
        sum += weight * texture(source, qt_TexCoord0 + float(i) * delta);
        weights += weight;
    }
    fragColor = sum / weights * qt_Opacity;
}
