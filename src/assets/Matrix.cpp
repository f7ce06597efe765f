#include "assets/Matrix.h"

#include <cmath>
#include <cstddef>

#include "assets/InvalidParameterException.h"
#include "assets/Numbers.h"
#include "assets/Vector4.h"

namespace tolvane {

namespace {

struct SineCosine {
    float sine;
    float cosine;
};

SineCosine RoundedSineCosine(float degrees) {
    const double radians = degrees * radiansPerDegree;
    return {static_cast<float>(RoundTo(std::sin(radians), 5)),
            static_cast<float>(RoundTo(std::cos(radians), 5))};
}

}  // namespace

Matrix::Matrix() {
    SetIdentity();
}

Matrix::Matrix(const std::array<float, 16>& rowMajor) : elements(rowMajor) {}

Matrix::Matrix(const Matrix& other) {
    for (int i = 0; i < 16; ++i)
        elements[static_cast<std::size_t>(i)] = other.At(i);
}

void Matrix::SetIdentity() {
    SetZero();
    elements[0] = elements[5] = elements[10] = elements[15] = 1.0f;
}

void Matrix::SetZero() {
    elements.fill(0.0f);
}

float Matrix::At(int index) const {
    if (index < 0 || index > 15)
        throw InvalidParameterException("(Matrix) The requested value is out of range!");
    return elements[static_cast<std::size_t>(index)];
}

void Matrix::SetTranslation(float x, float y, float z) {
    SetIdentity();
    elements[3] = x;
    elements[7] = y;
    elements[11] = z;
}

void Matrix::SetTranslation(const Vector4& offset) {
    SetTranslation(offset.GetX(), offset.GetY(), offset.GetZ());
}

void Matrix::SetRotationX(float degrees) {
    const auto [sine, cosine] = RoundedSineCosine(degrees);
    SetIdentity();
    elements[5] = elements[10] = cosine;
    elements[6] = -sine;
    elements[9] = sine;
}

void Matrix::SetRotationY(float degrees) {
    const auto [sine, cosine] = RoundedSineCosine(degrees);
    SetIdentity();
    elements[0] = elements[10] = cosine;
    elements[2] = sine;
    elements[8] = -sine;
}

void Matrix::SetRotationZ(float degrees) {
    const auto [sine, cosine] = RoundedSineCosine(degrees);
    SetIdentity();
    elements[0] = elements[5] = cosine;
    elements[1] = -sine;
    elements[4] = sine;
}

void Matrix::SetScale(float x, float y, float z) {
    SetIdentity();
    elements[0] = x;
    elements[5] = y;
    elements[10] = z;
}

Matrix& Matrix::operator+=(const Matrix& other) {
    for (std::size_t i = 0; i < 16; ++i)
        elements[i] += other.elements[i];
    return *this;
}

Matrix& Matrix::operator-=(const Matrix& other) {
    for (std::size_t i = 0; i < 16; ++i)
        elements[i] -= other.elements[i];
    return *this;
}

Matrix& Matrix::operator*=(const Matrix& other) {
    return *this = *this * other;
}

Matrix& Matrix::operator/=(const Matrix& other) {
    for (std::size_t i = 0; i < 16; ++i)
        elements[i] /= other.elements[i];
    return *this;
}

Matrix& Matrix::operator+=(float value) {
    for (float& element : elements)
        element += value;
    return *this;
}

Matrix& Matrix::operator-=(float value) {
    return *this += -value;
}

Matrix& Matrix::operator*=(float value) {
    for (float& element : elements)
        element *= value;
    return *this;
}

Matrix& Matrix::operator/=(float value) {
    for (float& element : elements)
        element /= value;
    return *this;
}

Matrix operator*(const Matrix& left, const Matrix& right) {
    std::array<float, 16> product{};
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column) {
            float sum = 0.0f;
            for (int k = 0; k < 4; ++k)
                sum += left.At(row * 4 + k) * right.At(k * 4 + column);
            product[static_cast<std::size_t>(row * 4 + column)] = sum;
        }
    }
    return Matrix(product);
}

Matrix operator*(const Matrix& left, float right) {
    Matrix result = left;
    return result *= right;
}

Vector4 operator*(const Matrix& left, const Vector4& right) {
    Vector4 result = right;
    return result *= left;
}

}  // namespace tolvane
