#pragma once

#include <string>

#include "assets/Color.h"
#include "scene/DrawAble.h"

namespace tolvane {

// A rectangle and a text in an orthographic space of its own that covers the viewport: x to the right and y
// down from the top left corner. Never picked. Without GLUT initialised the text is left out.
class TextBox2D final : public DrawAble {
public:
    // The size of the space, in its own units.
    TextBox2D(float spaceWidth, float spaceHeight);

    // Leaves culling, depth test, lighting and texturing on.
    void Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
              const Vertex* eyePosition, const Vertex* lightPosition) override;
    void Update(int renderMode, float dt) override;

    // What it shows. A font is one of GLUT's bitmap fonts (scene/Glut.h).
    void SetFont(void* newFont, const Color& color);
    // Line ends start a new line 25 lower; x and y are where the first line starts, on its base line.
    void SetText(const std::string& newText, int x, int y);
    // The upper left corner and the size of the rectangle; alpha counts only where blending is on.
    void SetBackground(int x, int y, int w, int h, const Color& color, float alpha);

    void SetVisible(bool show) { visible = show; }
    void SetBackgroundVisible(bool show) { backgroundVisible = show; }
    void SetTextVisible(bool show) { textVisible = show; }
    bool IsVisible() const { return visible; }
    const std::string& GetText() const { return text; }

    // Printing at a place of the current matrices, in the current colour.
    static void PrintString(int x, int y, void* withFont, const std::string& line);
    // With extra space behind each character.
    static void PrintSpaced(int x, int y, int spacing, void* withFont, const std::string& line);
    // One character under the other.
    static void PrintVertical(int x, int y, int lineHeight, void* withFont, const std::string& line);

private:
    void DrawBackground(bool blending) const;

    bool visible = true;
    bool backgroundVisible = true;
    bool textVisible = true;
    float width;
    float height;
    void* font = nullptr;
    Color textColor;
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    Color backgroundColor;
    float backgroundAlpha = 0.0f;
    std::string text;
    int textX = 0;
    int textY = 0;
};

}  // namespace tolvane
