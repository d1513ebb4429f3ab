// Gives grey figures the colour of their player, black bombs the chosen colour, and figures an outline.
// Colours in textures are multiplied by their alpha; all comparing and shading is done with plain ones.
#ifdef GL_ES
precision mediump float;
#endif

uniform sampler2D al_tex;

uniform bool enableRecolour;
uniform vec4 baseCol;
uniform bool baseColAny;
uniform vec4 newCol;
uniform bool outline;
uniform vec4 outlineCol;
uniform bool doDarkCol;
uniform float width;   // of the texture, in pixels
uniform float height;

varying vec4 varying_color;
varying vec2 varying_texcoord;

// Three steps of a byte, and half a step for the rounding of the texture itself.
const float tolerance = 3.5 / 255.0;

float alphaAt(vec2 place) {
    bool outside = place.x < 0.0 || place.y < 0.0 || place.x > 1.0 || place.y > 1.0;
    return outside ? 0.0 : texture2D(al_tex, place).a;
}

bool touchesVisible() {
    vec2 across = vec2(1.0 / width, 0.0);
    vec2 down = vec2(0.0, 1.0 / height);
    return alphaAt(varying_texcoord - across) > 0.0 || alphaAt(varying_texcoord + across) > 0.0 ||
           alphaAt(varying_texcoord - down) > 0.0 || alphaAt(varying_texcoord + down) > 0.0;
}

float greatest(vec3 colour) { return max(colour.r, max(colour.g, colour.b)); }

float least(vec3 colour) { return min(colour.r, min(colour.g, colour.b)); }

bool matches(vec3 colour) {
    if (baseColAny) {
        return true;
    }
    if (doDarkCol) {
        bool neutral = greatest(colour) - least(colour) <= tolerance;
        return neutral && greatest(colour) <= greatest(baseCol.rgb) + tolerance;
    }
    return greatest(abs(colour - baseCol.rgb)) <= tolerance;
}

vec3 recoloured(vec3 colour) {
    if (!doDarkCol) {
        return newCol.rgb;
    }
    return newCol.rgb * min(greatest(colour) / greatest(baseCol.rgb), 1.0);
}

void main() {
    vec4 texel = texture2D(al_tex, varying_texcoord);
    if (texel.a > 0.0) {
        vec3 colour = texel.rgb / texel.a;
        if (enableRecolour && matches(colour)) {
            texel.rgb = recoloured(colour) * texel.a;
        }
    } else if (outline && touchesVisible()) {
        texel = vec4(outlineCol.rgb, 1.0);
    }
    gl_FragColor = varying_color * texel;
}
