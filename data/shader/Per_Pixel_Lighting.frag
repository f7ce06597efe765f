#version 120

// Ambient, diffuse and emitted light tint the picture; the highlight comes on top, untinted, as the fixed
// function does with separate specular colour. The alpha is that of the material and the picture.

uniform sampler2D Texture;

varying vec3 normal;
varying vec4 leanAndPlace;

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
    vec2 cosines = leanAndPlace.xy * inversesqrt(dot(normal, normal));
    float lit = max(cosines.x, 0.0);
    float shine = power(min(cosines.y, 1.0), gl_FrontMaterial.shininess) * step(1.0e-6, lit);

    vec3 tint = gl_FrontLightModelProduct.sceneColor.rgb + gl_FrontLightProduct[0].ambient.rgb
        + gl_FrontLightProduct[0].diffuse.rgb * lit;
    vec4 picture = texture2D(Texture, leanAndPlace.zw);

    gl_FragColor = vec4(min(tint, 1.0) * picture.rgb + gl_FrontLightProduct[0].specular.rgb * shine,
        gl_FrontMaterial.diffuse.a * picture.a);
}
