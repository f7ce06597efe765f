#pragma once

namespace tolvane {

class Matrix;

// A direction or a point of the camera with its homogeneous weight.
class Vector4 {
public:
    Vector4() = default;
    Vector4(float px, float py, float pz) : x(px), y(py), z(pz) {}
    Vector4(float px, float py, float pz, float pw) : x(px), y(py), z(pz), w(pw) {}

    float GetX() const { return x; }
    float GetY() const { return y; }
    float GetZ() const { return z; }
    float GetW() const { return w; }

    // In place, over x, y and z; w stays.
    Vector4& operator+=(const Vector4& other);
    Vector4& operator-=(const Vector4& other);
    Vector4& operator*=(const Vector4& other);
    Vector4& operator/=(const Vector4& other);
    Vector4& operator+=(float value);
    Vector4& operator-=(float value);
    Vector4& operator*=(float value);
    Vector4& operator/=(float value);

    // The matrix applied to this vector; all four components take part.
    Vector4& operator*=(const Matrix& matrix);

    // A new vector with w = 1, except that a plain number added goes to w as well.
    Vector4 operator+(const Vector4& other) const;
    Vector4 operator-(const Vector4& other) const;
    Vector4 operator*(const Vector4& other) const;
    Vector4 operator+(float value) const;
    Vector4 operator-(float value) const;
    Vector4 operator*(float value) const;

    // All four, exactly.
    bool operator==(const Vector4& other) const = default;

    // Over x, y and z; the vectors answered have w = 1.
    float Length() const;
    Vector4 Normalized() const;
    Vector4 Cross(const Vector4& other) const;

private:
    float x = 0.0f;
    float y = 0.0f;
    float z = 0.0f;
    float w = 1.0f;
};

}  // namespace tolvane
