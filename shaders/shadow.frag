#version 440

layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform Block {
    mat4 qt_Matrix;
    float qt_Opacity;
    float spread;
    float darkness;
    vec2 boxSize;
};

void main()
{
    // The effect exceeds the box by the spread on every side.
    vec2 position = qt_TexCoord0 * (boxSize + 2.0 * spread) - spread;
    float distance = length(max(max(-position, position - boxSize), 0.0));
    float fade = 1.0 - min(distance / spread, 1.0);
    fragColor = vec4(0.0, 0.0, 0.0, darkness * fade * fade * qt_Opacity);
}
