#version 120

// The light of the fixed function, worked out for every pixel: here what changes slowly enough to be
// handed on from vertex to vertex.

uniform vec4 LightPos;  // w: 0 for a light that shines from far away, 1 for one at a place

varying vec3 normal;   // in eye space, to be made unit length again, and so is what follows from it
varying float facing;  // how far it turns to the light
varying vec3 halfway;  // between the ways to the light and to the eye
varying float rim;     // the little light that an edge catches which is seen against the board
varying vec2 skin;

const float rimLight = 0.1;

void main()
{
    vec3 place = vec3(gl_ModelViewMatrix * gl_Vertex);
    vec3 toEye = -normalize(place);
    vec3 toLight = normalize(gl_LightSource[0].position.xyz - place * LightPos.w);

    normal = normalize(gl_NormalMatrix * gl_Normal);
    facing = dot(normal, toLight);
    halfway = normalize(toLight + toEye);
    float edge = 1.0 - max(dot(normal, toEye), 0.0);
    rim = rimLight * edge * edge * edge;

    skin = gl_MultiTexCoord0.st;
    gl_Position = ftransform();
}
