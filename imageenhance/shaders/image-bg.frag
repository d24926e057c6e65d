#version 440

// A grid of round dots, counted from the middle of the canvas. Sizes in pixels of the item.
layout(location = 0) in vec2 qt_TexCoord0;
layout(location = 0) out vec4 fragColor;

layout(std140, binding = 0) uniform buf {
    mat4 qt_Matrix;
    float qt_Opacity;
    vec2 canvasSize;
    float dotSize;
    float dotColorR;
    float dotColorG;
    float dotColorB;
    float dotColorA;
    float spacing;
};

void main() {
    vec2 place = qt_TexCoord0 * canvasSize - canvasSize / 2.0;
    vec2 corner = floor(place / spacing) * spacing;
    float radius = dotSize / 2.0;
    bool inside = distance(place, corner + vec2(radius)) <= radius;
    vec4 color = vec4(vec3(dotColorR, dotColorG, dotColorB) * dotColorA, dotColorA);
    fragColor = inside ? color * qt_Opacity : vec4(0.0);
}
