#version 440

layout(location = 0) in vec4 vertex;
layout(location = 1) in vec2 pictureCoordinate;
layout(location = 0) out vec2 texcoord;

layout(std140, binding = 0) uniform Block {
    mat4 qt_Matrix;
    vec4 tint;
    float qt_Opacity;
};

void main()
{
    texcoord = pictureCoordinate;
    gl_Position = qt_Matrix * vertex;
}
