#include "assets/Vector4.h"

#include <cmath>

#include "assets/Matrix.h"

namespace tolvane {

Vector4& Vector4::operator+=(const Vector4& other) {
    x += other.x;
    y += other.y;
    z += other.z;
    return *this;
}

Vector4& Vector4::operator-=(const Vector4& other) {
    x -= other.x;
    y -= other.y;
    z -= other.z;
    return *this;
}

Vector4& Vector4::operator*=(const Vector4& other) {
    x *= other.x;
    y *= other.y;
    z *= other.z;
    return *this;
}

Vector4& Vector4::operator/=(const Vector4& other) {
    x /= other.x;
    y /= other.y;
    z /= other.z;
    return *this;
}

Vector4& Vector4::operator+=(float value) {
    return *this += Vector4(value, value, value);
}

Vector4& Vector4::operator-=(float value) {
    return *this -= Vector4(value, value, value);
}

Vector4& Vector4::operator*=(float value) {
    return *this *= Vector4(value, value, value);
}

Vector4& Vector4::operator/=(float value) {
    return *this /= Vector4(value, value, value);
}

Vector4& Vector4::operator*=(const Matrix& matrix) {
    const float source[4] = {x, y, z, w};
    float result[4] = {};
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j)
            result[i] += matrix.At(i * 4 + j) * source[j];
    return *this = Vector4(result[0], result[1], result[2], result[3]);
}

Vector4 Vector4::operator+(const Vector4& other) const {
    return {x + other.x, y + other.y, z + other.z};
}

Vector4 Vector4::operator-(const Vector4& other) const {
    return {x - other.x, y - other.y, z - other.z};
}

Vector4 Vector4::operator*(const Vector4& other) const {
    return {x * other.x, y * other.y, z * other.z};
}

Vector4 Vector4::operator+(float value) const {
    return {x + value, y + value, z + value, w + value};
}

Vector4 Vector4::operator-(float value) const {
    return {x - value, y - value, z - value};
}

Vector4 Vector4::operator*(float value) const {
    return {x * value, y * value, z * value};
}

float Vector4::Length() const {
    return std::sqrt(x * x + y * y + z * z);
}

Vector4 Vector4::Normalized() const {
    const float length = Length();
    return {x / length, y / length, z / length};
}

Vector4 Vector4::Cross(const Vector4& other) const {
    return {y * other.z - z * other.y, z * other.x - x * other.z, x * other.y - y * other.x};
}

}  // namespace tolvane
