#version 120

// The light of the fixed function, worked out for every pixel: here what changes slowly enough to be handed on
// from vertex to vertex. The light's and the material's colours go the same way although they are the same
// everywhere: a software renderer reads a varying faster than a uniform.

uniform vec4 LightPos;  // w: 0 for a light that shines from far away, 1 for one at a place

varying vec4 surface;  // the normal in eye space, to be made unit length again; w: how far it turns to the light
varying vec4 gleam;    // between the ways to the light and to the eye; w: the little light that an edge catches
varying vec4 shaded;   // colour and opacity where the light does not reach
varying vec3 lit;      // what full light adds to it
varying vec4 shine;    // colour of the highlight; w: how sharp it is
varying vec2 skin;

const float rimLight = 0.1;

void main()
{
    vec4 place = gl_ModelViewMatrix * gl_Vertex;
    vec3 toEye = -normalize(place.xyz);
    vec3 toLight = normalize(gl_LightSource[0].position.xyz - place.xyz * LightPos.w);
    vec3 normal = normalize(gl_NormalMatrix * gl_Normal);
    float edge = 1.0 - max(dot(normal, toEye), 0.0);

    surface = vec4(normal, dot(normal, toLight));
    gleam = vec4(normalize(toLight + toEye), rimLight * edge * edge * edge);

    shaded = vec4(gl_FrontLightModelProduct.sceneColor.rgb + gl_FrontLightProduct[0].ambient.rgb,
                  gl_FrontMaterial.diffuse.a);
    lit = gl_FrontLightProduct[0].diffuse.rgb;
    shine = vec4(gl_FrontLightProduct[0].specular.rgb, gl_FrontMaterial.shininess);

    skin = gl_MultiTexCoord0.st;
    gl_Position = ftransform();
}
