#version 120

// Ambient, diffuse and emitted light tint the picture; highlight and rim come on top, as the fixed function
// does with separate specular colour. It stays so close to the fixed function that a figure which begins to
// fade, and is drawn by that from then on, does not jump in brightness.

uniform sampler2D Texture;

varying vec4 surface;
varying vec4 gleam;
varying vec4 shaded;
varying vec3 lit;
varying vec4 shine;
varying vec2 skin;

// base to the power of exponent, for a base of 0 to 1: (1 + x / 8) to the eighth stands for e to the x.
float power(float base, float exponent)
{
    float root = max(1.0 - 0.125 * exponent * (1.0 - base), 0.0);
    root *= root;
    root *= root;
    return root * root;
}

void main()
{
    vec4 picture = texture2D(Texture, skin);
    // Cyan and amber lamps alone lie so far apart in red and blue: they shine by themselves.
    float lamp = clamp(5.0 * abs(picture.r - picture.b) - 3.0, 0.0, 1.0);

    float unit = inversesqrt(dot(surface.xyz, surface.xyz));
    vec3 tint = shaded.rgb + lit * max(surface.w * unit, 0.0) + lamp;

    // Dark paint throws back less of the light than bright paint.
    float highlight = power(min(dot(surface.xyz, gleam.xyz) * unit, 1.0), shine.w)
        * min(0.6 + 0.85 * picture.g, 1.0);

    gl_FragColor = vec4(min(tint, 1.0) * picture.rgb + shine.rgb * (highlight + gleam.w),
                        shaded.a * picture.a);
}
