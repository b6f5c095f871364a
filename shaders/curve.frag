#version 440

layout(location = 0) in vec2 texcoord;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform Block {
    mat4 qt_Matrix;
    float qt_Opacity;
    float zoom;
    vec2 center;
    int limit;
    float red;
    float green;
    float blue;
    float alpha;
};

void main()
{
    fragColor = vec4(red, green, blue, alpha) * (texcoord.x * texcoord.y) * qt_Opacity;
}
