#version 120

// The light of the fixed function, worked out for every pixel: here what changes slowly enough to be
// handed on from vertex to vertex.

uniform vec4 LightPos;  // w: 0 for a light that shines from far away, 1 for one at a place

varying vec3 normal;    // all three in eye space; only the first two have to be made unit length again
varying vec3 halfway;   // between the ways to the light and to the eye
varying vec3 toLight;

void main()
{
    vec3 place = vec3(gl_ModelViewMatrix * gl_Vertex);

    normal = gl_NormalMatrix * gl_Normal;
    toLight = normalize(gl_LightSource[0].position.xyz - place * LightPos.w);
    halfway = toLight - normalize(place);

    gl_TexCoord[0] = gl_MultiTexCoord0;
    gl_Position = ftransform();
}
