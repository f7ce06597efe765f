#include "assets/Matrix.h"

#include <gmock/gmock.h>

#include "assets/InvalidParameterException.h"
#include "assets/Vector4.h"

namespace tolvane {

static void PrintTo(const Matrix& matrix, std::ostream* out) {
    for (int i = 0; i < 16; ++i)
        *out << (i == 0 ? "(" : i % 4 == 0 ? " | " : " ") << matrix.At(i);
    *out << ')';
}

namespace {

const Matrix identity({1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1});
const Matrix counted({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16});
const Matrix twos({2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2, 2});

std::string MessageOfAt(int index) {
    try {
        identity.At(index);
    } catch (const InvalidParameterException& exception) {
        return exception.GetMessage();
    }
    return {};
}

TEST(Matrix, MovesAndTurnsAPoint) {
    Matrix turn;
    turn.SetRotationY(90);
    Matrix move;
    move.SetTranslation(10, 20, 30);
    EXPECT_EQ(move * turn * Vector4(1, 0, 0), Vector4(10, 20, 29));
}

TEST(Matrix, StartsAsTheIdentity) {
    EXPECT_EQ(Matrix(), identity);
    EXPECT_EQ(Matrix().At(15), 1.0f);
}

TEST(Matrix, CopiesAllElements) {
    const Matrix copy(counted);
    EXPECT_EQ(copy, counted);
    Matrix assigned;
    assigned = counted;
    EXPECT_EQ(assigned, counted);
}

TEST(Matrix, AnswersElementsInRowMajorOrder) {
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(counted.At(i), static_cast<float>(i + 1));
}

TEST(Matrix, RefusesElementsOutsideIt) {
    for (const int index : {-1, 16, 1000, -1000})
        EXPECT_EQ(MessageOfAt(index), "(Matrix) The requested value is out of range!") << index;
}

TEST(Matrix, SetsWholeMatrices) {
    Matrix m = counted;
    m.SetZero();
    EXPECT_EQ(m, Matrix(std::array<float, 16>{}));
    m.SetIdentity();
    EXPECT_EQ(m, identity);
    m = counted;
    m.SetTranslation(5, 6, 7);
    EXPECT_EQ(m, Matrix({1, 0, 0, 5, 0, 1, 0, 6, 0, 0, 1, 7, 0, 0, 0, 1}));
    m.SetTranslation(Vector4(8, 9, 10, 11));
    EXPECT_EQ(m, Matrix({1, 0, 0, 8, 0, 1, 0, 9, 0, 0, 1, 10, 0, 0, 0, 1}));
    m.SetScale(2, 3, 4);
    EXPECT_EQ(m, Matrix({2, 0, 0, 0, 0, 3, 0, 0, 0, 0, 4, 0, 0, 0, 0, 1}));
}

TEST(Matrix, QuarterTurnsAreExact) {
    Matrix m = counted;
    m.SetRotationX(90);
    EXPECT_EQ(m, Matrix({1, 0, 0, 0, 0, 0, -1, 0, 0, 1, 0, 0, 0, 0, 0, 1}));
    m.SetRotationY(90);
    EXPECT_EQ(m, Matrix({0, 0, 1, 0, 0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 0, 1}));
    m.SetRotationZ(90);
    EXPECT_EQ(m, Matrix({0, -1, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}));
}

TEST(Matrix, OtherTurnsCarryFiveDecimals) {
    Matrix m;
    m.SetRotationZ(30);
    EXPECT_EQ(m.At(0), 0.86603f);
    EXPECT_EQ(m.At(1), -0.5f);
    m.SetRotationX(-45);
    EXPECT_EQ(m.At(5), 0.70711f);
    EXPECT_EQ(m.At(6), 0.70711f);
    EXPECT_EQ(m.At(9), -0.70711f);
}

TEST(Matrix, MultipliesRowsWithColumns) {
    const Matrix swapsFirstTwo({0, 1, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1});
    EXPECT_EQ(swapsFirstTwo * counted, Matrix({5, 6, 7, 8, 1, 2, 3, 4, 9, 10, 11, 12, 13, 14, 15, 16}));
    EXPECT_EQ(counted * swapsFirstTwo, Matrix({2, 1, 3, 4, 6, 5, 7, 8, 10, 9, 11, 12, 14, 13, 15, 16}));
    EXPECT_EQ(counted * counted,
              Matrix({90, 100, 110, 120, 202, 228, 254, 280, 314, 356, 398, 440, 426, 484, 542, 600}));
    Matrix m = counted;
    m *= counted;
    EXPECT_EQ(m, counted * counted);
}

TEST(Matrix, OtherwiseWorksElementByElement) {
    Matrix m = counted;
    m += counted;
    EXPECT_EQ(m, counted * 2.0f);
    m -= counted;
    EXPECT_EQ(m, counted);
    m /= counted;
    EXPECT_EQ(m, twos * 0.5f);
    m += 1.0f;
    EXPECT_EQ(m, twos);
    m *= 3.0f;
    m /= 2.0f;
    m -= 1.0f;
    EXPECT_EQ(m, twos);
    EXPECT_EQ(counted + twos - twos, counted);
    EXPECT_EQ(twos / twos * 2.0f, twos);
    EXPECT_EQ((twos + 4.0f) / 3.0f, twos);
    EXPECT_EQ(twos - 2.0f, Matrix(std::array<float, 16>{}));
}

TEST(Matrix, ComparesExactly) {
    Matrix almost;
    almost.SetScale(1, 1, 1.0000001f);
    EXPECT_TRUE(almost != identity);
    EXPECT_FALSE(almost == identity);
}

}  // namespace
}  // namespace tolvane
