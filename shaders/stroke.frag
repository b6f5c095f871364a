#version 440

layout(location = 0) in float fromMiddle;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform Block {
    mat4 qt_Matrix;
    vec4 color;
    float qt_Opacity;
    float reach;
};

// Half a pixel inside and half a pixel outside of the line's edge the coverage falls from 1 to 0.
void main()
{
    fragColor = color * (clamp(reach - abs(fromMiddle), 0.0, 1.0) * qt_Opacity);
}
