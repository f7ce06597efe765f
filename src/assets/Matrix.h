#pragma once

#include <array>

namespace tolvane {

class Vector4;

// A 4 by 4 matrix in row-major order: element row * 4 + column, the translation in 3, 7 and 11.
class Matrix {
public:
    // The identity.
    Matrix();
    explicit Matrix(const std::array<float, 16>& rowMajor);
    Matrix(const Matrix& other);
    Matrix& operator=(const Matrix& other) = default;

    void SetIdentity();
    void SetZero();

    // Element 0 to 15; throws InvalidParameterException for any other index.
    float At(int index) const;

    // What moves, turns and scales. Angles in degrees; a rotation carries no more than five decimals, so
    // that a quarter turn is exact.
    void SetTranslation(float x, float y, float z);
    void SetTranslation(const Vector4& offset);
    void SetRotationX(float degrees);
    void SetRotationY(float degrees);
    void SetRotationZ(float degrees);
    void SetScale(float x, float y, float z);

    // Element by element, but for the product of two matrices, which is the row-major product.
    Matrix& operator+=(const Matrix& other);
    Matrix& operator-=(const Matrix& other);
    Matrix& operator*=(const Matrix& other);
    Matrix& operator/=(const Matrix& other);
    Matrix& operator+=(float value);
    Matrix& operator-=(float value);
    Matrix& operator*=(float value);
    Matrix& operator/=(float value);

    bool operator==(const Matrix& other) const = default;

private:
    std::array<float, 16> elements;
};

template <typename Right>
Matrix operator+(Matrix left, const Right& right) {
    return left += right;
}

template <typename Right>
Matrix operator-(Matrix left, const Right& right) {
    return left -= right;
}

template <typename Right>
Matrix operator/(Matrix left, const Right& right) {
    return left /= right;
}

Matrix operator*(const Matrix& left, const Matrix& right);
Matrix operator*(const Matrix& left, float right);
Vector4 operator*(const Matrix& left, const Vector4& right);

}  // namespace tolvane
