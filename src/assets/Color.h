#pragma once

namespace tolvane {

// A colour of text or of a highlight, each part from 0 to 1.
class Color {
public:
    Color() = default;
    Color(float redPart, float greenPart, float bluePart) : red(redPart), green(greenPart), blue(bluePart) {}

    float GetRed() const { return red; }
    float GetGreen() const { return green; }
    float GetBlue() const { return blue; }

private:
    float red = 0.0f;
    float green = 0.0f;
    float blue = 0.0f;
};

}  // namespace tolvane
