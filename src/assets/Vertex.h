#pragma once

namespace tolvane {

// A point, a direction or a velocity in world units: x to the right of the board as White sees it,
// y up, z towards White's side.
struct Vertex {
    float x = 0.0f;
    float y = 0.0f;
    float z = 0.0f;
};

Vertex MakeVertex(float x, float y, float z);

// Component by component.
Vertex Add(const Vertex& a, const Vertex& b);
Vertex Subtract(const Vertex& a, const Vertex& b);
Vertex Scale(const Vertex& a, float factor);
Vertex Divide(const Vertex& a, float divisor);

float Dot(const Vertex& a, const Vertex& b);
Vertex Cross(const Vertex& a, const Vertex& b);
float Length(const Vertex& a);

// The vector divided by its length. A vector of length zero is not caught: its result is not a number.
Vertex Normalized(const Vertex& a);

// Whether all components agree once each is rounded to five decimals.
bool Equal(const Vertex& a, const Vertex& b);
bool NotEqual(const Vertex& a, const Vertex& b);

}  // namespace tolvane
