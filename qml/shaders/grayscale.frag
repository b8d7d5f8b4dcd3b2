#version 440

// A layer in gray, with whole numbers: (16 green + 11 blue + 5 red) / 32, cut.

layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 qt_Matrix;
    float qt_Opacity;
    float sourceOpacity;
};
layout(binding = 1) uniform sampler2D source;

void main()
{
    vec4 pixel = texture(source, qt_TexCoord0);
    vec3 color = floor(pixel.rgb / max(pixel.a, 1.0 / 255.0) * 255.0 + 0.5);
    float gray = floor(dot(color, vec3(5.0, 16.0, 11.0)) / 32.0) / 255.0;
    fragColor = vec4(vec3(gray * pixel.a), pixel.a) * sourceOpacity * qt_Opacity;
}
