#version 440

layout(location = 0) in vec2 texcoord;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform Block {
    mat4 qt_Matrix;
    vec4 tint;
    float qt_Opacity;
};
layout(binding = 1) uniform sampler2D picture;

void main()
{
    fragColor = tint * (texture(picture, texcoord).a * qt_Opacity);
}
