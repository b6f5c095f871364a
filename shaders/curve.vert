#version 440

layout(location = 0) in vec4 vertex;
layout(location = 1) in vec2 saturation;
layout(location = 0) out vec2 texcoord;

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
    texcoord = saturation;
    gl_Position = qt_Matrix * vertex;
}
