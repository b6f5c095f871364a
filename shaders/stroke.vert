#version 440

layout(location = 0) in vec4 vertex;
layout(location = 1) in float offset;
layout(location = 0) out float fromMiddle;

layout(std140, binding = 0) uniform Block {
    mat4 qt_Matrix;
    vec4 color;
    float qt_Opacity;
    float reach;
};

void main()
{
    fromMiddle = offset;
    gl_Position = qt_Matrix * vertex;
}
