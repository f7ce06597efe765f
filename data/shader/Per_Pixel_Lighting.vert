#version 120

// The light of the fixed function, worked out for every pixel. Across one triangle the ways to the light and to
// the eye hardly change: so the products with the normal are made here and handed on, and a pixel only has to
// divide them by the length that its normal has lost on the way between the vertices.

uniform vec4 LightPos;  // w: 0 for a light that shines from far away, 1 for one at a place

varying vec3 normal;        // in eye space
varying vec4 leanAndPlace;  // xy: how the normal leans to the light, and to the middle between light and eye;
                            // zw: the place in the picture

void main()
{
    vec3 place = vec3(gl_ModelViewMatrix * gl_Vertex);
    vec3 toLight = normalize(gl_LightSource[0].position.xyz - place * LightPos.w);
    vec3 toEye = -normalize(place);

    normal = gl_NormalMatrix * gl_Normal;
    leanAndPlace.xy = vec2(dot(normal, toLight), dot(normal, normalize(toLight + toEye)));
    leanAndPlace.zw = gl_MultiTexCoord0.st;
    gl_Position = ftransform();
}
