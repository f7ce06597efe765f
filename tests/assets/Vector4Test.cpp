#include "assets/Vector4.h"

#include <gmock/gmock.h>

#include <cmath>

#include "assets/Matrix.h"

namespace tolvane {

static void PrintTo(const Vector4& vector, std::ostream* out) {
    *out << '(' << vector.GetX() << ", " << vector.GetY() << ", " << vector.GetZ() << ", " << vector.GetW()
         << ')';
}

namespace {

TEST(Vector4, TurnsUnderAMatrix) {
    Matrix quarterTurn;
    quarterTurn.SetRotationZ(90);
    Vector4 ahead(1, 0, 0);
    ahead *= quarterTurn;
    EXPECT_EQ(ahead, Vector4(0, 1, 0));
}

TEST(Vector4, HasWeightOneUnlessTold) {
    EXPECT_EQ(Vector4(), Vector4(0, 0, 0, 1));
    EXPECT_EQ(Vector4(1, 2, 3), Vector4(1, 2, 3, 1));
    EXPECT_EQ(Vector4(1, 2, 3, 4).GetW(), 4.0f);
}

TEST(Vector4, AssignmentTakesAllFour) {
    Vector4 copy;
    copy = Vector4(5, 6, 7, 8);
    EXPECT_EQ(copy, Vector4(5, 6, 7, 8));
}

TEST(Vector4, ChangesInPlaceWithoutItsWeight) {
    const Vector4 start(2, 4, 8, 16);
    const Vector4 other(1, 2, 4, 64);
    Vector4 v = start;
    EXPECT_EQ(v += other, Vector4(3, 6, 12, 16));
    v = start;
    EXPECT_EQ(v -= other, Vector4(1, 2, 4, 16));
    v = start;
    EXPECT_EQ(v *= other, Vector4(2, 8, 32, 16));
    v = start;
    EXPECT_EQ(v /= other, Vector4(2, 2, 2, 16));
    v = start;
    EXPECT_EQ(v += 1.0f, Vector4(3, 5, 9, 16));
    v = start;
    EXPECT_EQ(v -= 1.0f, Vector4(1, 3, 7, 16));
    v = start;
    EXPECT_EQ(v *= 0.5f, Vector4(1, 2, 4, 16));
    v = start;
    EXPECT_EQ(v /= 2.0f, Vector4(1, 2, 4, 16));
}

TEST(Vector4, CombinesToANewOneOfWeightOne) {
    const Vector4 a(1, 2, 3, 7);
    const Vector4 b(4, 5, 6, 9);
    EXPECT_EQ(a + b, Vector4(5, 7, 9, 1));
    EXPECT_EQ(a - b, Vector4(-3, -3, -3, 1));
    EXPECT_EQ(a * b, Vector4(4, 10, 18, 1));
    EXPECT_EQ(a - 1.0f, Vector4(0, 1, 2, 1));
    EXPECT_EQ(a * 2.0f, Vector4(2, 4, 6, 1));
}

TEST(Vector4, APlainNumberIsAddedToTheWeightAsWell) {
    EXPECT_EQ(Vector4(1, 2, 3) + 10.0f, Vector4(11, 12, 13, 11));
}

TEST(Vector4, ComparesAllFourExactly) {
    EXPECT_FALSE(Vector4(1, 2, 3, 4) == Vector4(1, 2, 3, 5));
    EXPECT_TRUE(Vector4(1, 2, 3, 4) != Vector4(1, 2, 3.000001f, 4));
    EXPECT_FALSE(Vector4(1, 2, 3, 4) != Vector4(1, 2, 3, 4));
}

TEST(Vector4, MeasuresOnlyItsDirection) {
    EXPECT_EQ(Vector4(2, 3, 6, 100).Length(), 7.0f);
    EXPECT_EQ(Vector4(0, 0, -4, 100).Normalized(), Vector4(0, 0, -1, 1));
    EXPECT_EQ(Vector4(1, 2, 3, 9).Cross(Vector4(4, -5, 6, 9)), Vector4(27, 6, -13, 1));
    EXPECT_TRUE(std::isnan(Vector4(0, 0, 0).Normalized().GetX()));
}

TEST(Vector4, MatrixProductTakesAllFourAlong) {
    const Matrix counted({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16});
    const Vector4 v(1, 2, 3, 4);
    EXPECT_EQ(counted * v, Vector4(30, 70, 110, 150));
    Vector4 inPlace = v;
    EXPECT_EQ(inPlace *= counted, Vector4(30, 70, 110, 150));
    EXPECT_EQ(inPlace, Vector4(30, 70, 110, 150));
}

}  // namespace
}  // namespace tolvane
