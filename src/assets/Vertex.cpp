#include "assets/Vertex.h"

#include <cmath>

#include "assets/Numbers.h"

namespace tolvane {

Vertex MakeVertex(float x, float y, float z) {
    return {x, y, z};
}

Vertex Add(const Vertex& a, const Vertex& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

Vertex Subtract(const Vertex& a, const Vertex& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

Vertex Scale(const Vertex& a, float factor) {
    return {a.x * factor, a.y * factor, a.z * factor};
}

Vertex Divide(const Vertex& a, float divisor) {
    return {a.x / divisor, a.y / divisor, a.z / divisor};
}

float Dot(const Vertex& a, const Vertex& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Vertex Cross(const Vertex& a, const Vertex& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

float Length(const Vertex& a) {
    return std::sqrt(Dot(a, a));
}

Vertex Normalized(const Vertex& a) {
    return Divide(a, Length(a));
}

bool Equal(const Vertex& a, const Vertex& b) {
    return RoundTo(a.x, 5) == RoundTo(b.x, 5) && RoundTo(a.y, 5) == RoundTo(b.y, 5) &&
           RoundTo(a.z, 5) == RoundTo(b.z, 5);
}

bool NotEqual(const Vertex& a, const Vertex& b) {
    return !Equal(a, b);
}

}  // namespace tolvane
