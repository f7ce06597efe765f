#version 120

// Ambient, diffuse and emitted light tint the picture; highlight and rim come on top, as the fixed function
// does with separate specular colour. It stays so close to the fixed function that a figure which begins to
// fade, and is drawn by that from then on, does not jump in brightness.

uniform sampler2D Texture;

varying vec3 normal;
varying float facing;
varying vec3 halfway;
varying float rim;
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

    float unit = inversesqrt(dot(normal, normal));
    vec3 tint = gl_FrontLightModelProduct.sceneColor.rgb + gl_FrontLightProduct[0].ambient.rgb
        + gl_FrontLightProduct[0].diffuse.rgb * max(facing * unit, 0.0) + lamp;

    // Dark paint throws back less of the light than bright paint.
    float shine = power(min(dot(normal, halfway) * unit, 1.0), gl_FrontMaterial.shininess);
    float gleam = shine * min(0.6 + 0.85 * picture.g, 1.0) + rim;

    gl_FragColor = vec4(min(tint, 1.0) * picture.rgb + gl_FrontLightProduct[0].specular.rgb * gleam,
                        gl_FrontMaterial.diffuse.a * picture.a);
}
