#version 120

// Ambient, diffuse and emitted light tint the picture; the highlight comes on top, untinted, as the fixed
// function does with separate specular colour. The alpha is that of the material and the picture.

uniform sampler2D Texture;

varying vec3 normal;
varying vec3 halfway;
varying vec3 toLight;

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
    vec3 up = normalize(normal);
    float facing = dot(up, toLight);
    float lit = max(facing, 0.0);
    float shine = power(min(dot(up, normalize(halfway)), 1.0), gl_FrontMaterial.shininess);

    vec3 tint = gl_FrontLightModelProduct.sceneColor.rgb + gl_FrontLightProduct[0].ambient.rgb
        + gl_FrontLightProduct[0].diffuse.rgb * lit;
    vec3 highlight = gl_FrontLightProduct[0].specular.rgb * (shine * step(1.0e-6, facing));
    vec4 picture = texture2D(Texture, gl_TexCoord[0].st);

    gl_FragColor = vec4(min(tint, 1.0) * picture.rgb + highlight, gl_FrontMaterial.diffuse.a * picture.a);
}
