#version 440

// Puts one layer over another in a composition mode of the painter, with the painter's arithmetic: colours are
// premultiplied, and the channels are whole numbers from 0 to 255.

layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 qt_Matrix;
    float qt_Opacity;
    float sourceOpacity;
    float backdropOpacity;
    int mode;
};
layout(binding = 1) uniform sampler2D source;
layout(binding = 2) uniform sampler2D backdrop;

// The painter's numbers of its composition modes.
const int modePlus = 12;
const int modeMultiply = 13;
const int modeScreen = 14;
const int modeOverlay = 15;
const int modeDarken = 16;
const int modeLighten = 17;
const int modeColorDodge = 18;
const int modeColorBurn = 19;
const int modeHardLight = 20;
const int modeDifference = 22;
const int modeExclusion = 23;

vec3 darken(vec3 s, vec3 d, float sa, float da)
{
    return min(s * da, d * sa);
}

// Two functions that meet where `pivot` is half of its alpha.
vec3 light(vec3 s, vec3 d, float sa, float da, vec3 pivot, float pivotAlpha)
{
    vec3 low = 2.0 * s * d;
    vec3 high = sa * da - 2.0 * (da - d) * (sa - s);
    return mix(high, low, vec3(lessThan(2.0 * pivot, vec3(pivotAlpha))));
}

float dodge(float s, float d, float sa, float da)
{
    if (s * da + d * sa > sa * da)
        return sa * da;
    if (sa < 0.5 || s >= sa)
        return 0.0;
    return floor((255.0 * d * sa + 0.5) / (255.0 - floor((255.0 * s + 0.5) / sa)));
}

float burn(float s, float d, float sa, float da)
{
    float reach = s * da + d * sa - sa * da;
    if (reach < 0.0)
        return 0.0;
    if (s < 0.5)
        return d * sa;
    return floor((sa * reach + 0.5) / s);
}

// What the colours that both layers cover make of each other, times 255.
vec3 both(vec3 s, vec3 d, float sa, float da)
{
    if (mode == modeMultiply)
        return s * d;
    if (mode == modeScreen)
        return s * da + d * sa - s * d;
    if (mode == modeOverlay)
        return light(s, d, sa, da, d, da);
    if (mode == modeDarken)
        return darken(s, d, sa, da);
    if (mode == modeLighten)
        return max(s * da, d * sa);
    if (mode == modeColorDodge)
        return vec3(dodge(s.r, d.r, sa, da), dodge(s.g, d.g, sa, da), dodge(s.b, d.b, sa, da));
    if (mode == modeColorBurn)
        return vec3(burn(s.r, d.r, sa, da), burn(s.g, d.g, sa, da), burn(s.b, d.b, sa, da));
    if (mode == modeHardLight)
        return light(s, d, sa, da, s, sa);
    if (mode == modeDifference)
        return s * da + d * sa - 2.0 * darken(s, d, sa, da);
    return s * da;
}

vec4 composed(vec4 s, vec4 d)
{
    if (mode == modePlus)
        return min(s + d, vec4(255.0));
    float alpha = s.a + d.a - floor(s.a * d.a / 255.0 + 0.5);
    // Here the painter divides by 256.
    if (mode == modeExclusion)
        return vec4(s.rgb + d.rgb - floor(s.rgb * d.rgb / 128.0), alpha);
    vec3 alone = s.rgb * (255.0 - d.a) + d.rgb * (255.0 - s.a);
    vec3 color = floor((both(s.rgb, d.rgb, s.a, d.a) + alone) / 255.0 + 0.5);
    return vec4(min(color, vec3(alpha)), alpha);
}

void main()
{
    vec4 s = floor(texture(source, qt_TexCoord0) * 255.0 + 0.5);
    vec4 d = floor(texture(backdrop, qt_TexCoord0) * backdropOpacity * 255.0 + 0.5);
    fragColor = mix(d, composed(s, d), sourceOpacity) / 255.0 * qt_Opacity;
}
