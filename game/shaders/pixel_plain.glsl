// Lays a texture and nothing else. The platform library's own pixel shader gives the same colours, but serves every
// kind of drawing and asks for each pixel which one it is.
#ifdef GL_ES
precision mediump float;
#endif

uniform sampler2D al_tex;

varying vec4 varying_color;
varying vec2 varying_texcoord;

void main() { gl_FragColor = varying_color * texture2D(al_tex, varying_texcoord); }
