#include "scene/TextBox2D.h"

#include "scene/Glut.h"
#include "scene/MatrixScope.h"

namespace tolvane {

namespace {

constexpr int lineDistance = 25;

// The flat space of a box for the length of a block: units as given, origin at the top left, y downward.
class FlatSpace {
public:
    FlatSpace(float width, float height) {
        glMatrixMode(GL_PROJECTION);
        glPushMatrix();
        glLoadIdentity();
        gluOrtho2D(0.0, width, 0.0, height);
        glScalef(1.0f, -1.0f, 1.0f);
        glTranslatef(0.0f, -height, 0.0f);
        glMatrixMode(GL_MODELVIEW);
        glDisable(GL_CULL_FACE);
        glDisable(GL_DEPTH_TEST);
        glDisable(GL_LIGHTING);
        glDisable(GL_TEXTURE_2D);
    }

    ~FlatSpace() {
        glMatrixMode(GL_PROJECTION);
        glPopMatrix();
        glMatrixMode(GL_MODELVIEW);
        glEnable(GL_CULL_FACE);
        glEnable(GL_DEPTH_TEST);
        glEnable(GL_LIGHTING);
        glEnable(GL_TEXTURE_2D);
    }

    FlatSpace(const FlatSpace&) = delete;
    FlatSpace& operator=(const FlatSpace&) = delete;
};

bool CanPrint() {
    return glutGet(GLUT_INIT_STATE) != 0;
}

void PrintCharacter(void* font, char character) {
    glutBitmapCharacter(font, static_cast<unsigned char>(character));
}

}  // namespace

TextBox2D::TextBox2D(float spaceWidth, float spaceHeight) : width(spaceWidth), height(spaceHeight) {}

void TextBox2D::Draw(int, bool, bool selectionPass, bool blending, const Vertex*, const Vertex*) {
    if (!visible || selectionPass)
        return;

    const MatrixScope scope;
    const FlatSpace space(width, height);
    glLoadIdentity();
    if (backgroundVisible)
        DrawBackground(blending);
    if (textVisible) {
        glColor3f(textColor.GetRed(), textColor.GetGreen(), textColor.GetBlue());
        PrintString(textX, textY, font, text);
    }
}

void TextBox2D::DrawBackground(bool blending) const {
    if (blending) {
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    }
    glColor4f(backgroundColor.GetRed(), backgroundColor.GetGreen(), backgroundColor.GetBlue(),
              backgroundAlpha);
    glRectf(left, top, right, bottom);
    glDisable(GL_BLEND);
}

void TextBox2D::Update(int, float) {}

void TextBox2D::SetFont(void* newFont, const Color& color) {
    font = newFont;
    textColor = color;
}

void TextBox2D::SetText(const std::string& newText, int x, int y) {
    text = newText;
    textX = x;
    textY = y;
}

void TextBox2D::SetBackground(int x, int y, int w, int h, const Color& color, float alpha) {
    left = x;
    top = y;
    right = x + w;
    bottom = y + h;
    backgroundColor = color;
    backgroundAlpha = alpha;
}

void TextBox2D::PrintString(int x, int y, void* withFont, const std::string& line) {
    if (!CanPrint())
        return;
    glRasterPos2f(x, y);
    for (const char character : line) {
        PrintCharacter(withFont, character);
        if (character == '\n') {
            y += lineDistance;
            glRasterPos2f(x, y);
        }
    }
}

void TextBox2D::PrintSpaced(int x, int y, int spacing, void* withFont, const std::string& line) {
    if (!CanPrint())
        return;
    for (const char character : line) {
        glRasterPos2f(x, y);
        PrintCharacter(withFont, character);
        x += glutBitmapWidth(withFont, static_cast<unsigned char>(character)) + spacing;
    }
}

void TextBox2D::PrintVertical(int x, int y, int lineHeight, void* withFont, const std::string& line) {
    if (!CanPrint())
        return;
    for (const char character : line) {
        glRasterPos2f(x, y);
        PrintCharacter(withFont, character);
        y += lineHeight;
    }
}

}  // namespace tolvane
