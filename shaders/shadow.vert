#version 440

layout(location = 0) in vec4 vertex;
layout(location = 1) in vec2 textureCoordinate;
layout(location = 0) out vec2 qt_TexCoord0;

layout(std140, binding = 0) uniform Block {
    mat4 qt_Matrix;
    float qt_Opacity;
    float spread;
    float darkness;
    vec2 boxSize;
};

void main()
{
    qt_TexCoord0 = textureCoordinate;
    gl_Position = qt_Matrix * vertex;
}
