#include "scene/BoardSelectionGrid.h"

#include "assets/Color.h"
#include "assets/Gl.h"
#include "scene/DisplayList.h"
#include "scene/MatrixScope.h"

namespace tolvane {

namespace {

constexpr unsigned int fieldsInRow = 8;
constexpr unsigned int fieldCount = fieldsInRow * fieldsInRow;
constexpr unsigned int firstPickName = 100;
constexpr float height = 0.3f;  // above the board
constexpr float squareAlpha = 0.3f;

// Calls draw with the index of each field, the current matrix being that of the field's lower corner.
template <typename Drawing>
void ForEachField(float width, float depth, Drawing&& draw) {
    unsigned int index = 0;
    for (int row = 3; row >= -4; --row) {
        for (int column = -4; column <= 3; ++column) {
            const MatrixScope scope;
            glTranslatef(static_cast<float>(column) * width, height, static_cast<float>(row) * depth);
            draw(index++);
        }
    }
}

// A level rectangle of a surrounding glBegin(GL_QUADS), seen from above.
void EmitRectangle(float x0, float z0, float x1, float z1) {
    glVertex3f(x0, 0.0f, z0);
    glVertex3f(x1, 0.0f, z0);
    glVertex3f(x1, 0.0f, z1);
    glVertex3f(x0, 0.0f, z1);
}

Color FrameColor(int highlight) {
    switch (highlight) {
        case 1: return {1.0f, 0.0f, 0.0f};
        case 2: return {0.0f, 1.0f, 0.0f};
        case 3: return {0.0f, 0.0f, 1.0f};
    }
    return {};
}

}  // namespace

BoardSelectionGrid::BoardSelectionGrid(float widthOfField, float depthOfField)
    : fieldWidth(widthOfField),
      fieldDepth(depthOfField),
      borderX(fieldWidth / 10.0f),
      borderZ(fieldDepth / 10.0f),
      frameX(borderX / 2.0f),
      frameZ(borderZ / 2.0f) {
    minX = -4.0f * fieldWidth;
    maxX = 3.0f * fieldWidth;
    minZ = -4.0f * fieldDepth;
    maxZ = 3.0f * fieldDepth;

    fields.reserve(fieldCount);
    for (unsigned int row = 0; row < fieldsInRow; ++row)
        for (unsigned int column = 0; column < fieldsInRow; ++column)
            fields.emplace_back(column, row);
    BuildDisplayLists();
}

void BoardSelectionGrid::Draw(int, bool useDisplayLists, bool selectionPass, bool blending, const Vertex*,
                              const Vertex*) {
    if (!visible)
        return;

    ApplyStandardTransform();
    glDisable(GL_TEXTURE_2D);
    glDisable(GL_LIGHTING);
    glDepthMask(GL_FALSE);
    if (blending) {
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    }

    if (selectionPass)
        DrawPickNames(useDisplayLists);
    else
        DrawFields(useDisplayLists);

    glDepthMask(GL_TRUE);
    glDisable(GL_BLEND);
    glEnable(GL_TEXTURE_2D);
    glEnable(GL_LIGHTING);
}

void BoardSelectionGrid::DrawPickNames(bool useDisplayLists) {
    glColor4f(1.0f, 1.0f, 1.0f, squareAlpha);
    ForEachField(fieldWidth, fieldDepth, [&](unsigned int index) {
        glPushName(firstPickName + index);
        if (useDisplayLists)
            glCallList(secondDisplayList);
        else
            DrawFullQuad();
        glPopName();
    });
}

void BoardSelectionGrid::DrawFields(bool useDisplayLists) {
    ForEachField(fieldWidth, fieldDepth, [&](unsigned int index) {
        const bool dark = (index / fieldsInRow + index % fieldsInRow) % 2 == 0;
        glColor4f(0.0f, dark ? 0.5f : 0.8f, 0.0f, squareAlpha);
        if (useDisplayLists)
            glCallList(displayList);
        else
            DrawFieldQuad();

        const int highlight = fields[index].GetHighlight();
        if (highlight != 0)
            DrawHighlight(highlight, useDisplayLists);
    });
}

void BoardSelectionGrid::DrawHighlight(int code, bool useDisplayLists) {
    const Color color = FrameColor(code);
    // The two ways of drawing differ in strength on purpose.
    glColor4f(color.GetRed(), color.GetGreen(), color.GetBlue(), useDisplayLists ? 0.5f : 0.6f);
    if (useDisplayLists)
        glCallList(frameDisplayList);
    else
        DrawFieldFrame();
}

void BoardSelectionGrid::Update(int, float) {}

void BoardSelectionGrid::BuildDisplayLists() {
    displayList = CompileDisplayList([this] { DrawFieldQuad(); });
    frameDisplayList = CompileDisplayList([this] { DrawFieldFrame(); });
    secondDisplayList = CompileDisplayList([this] { DrawFullQuad(); });
}

Field3D* BoardSelectionGrid::GetField(unsigned int index) {
    return &fields.at(index);
}

void BoardSelectionGrid::SetVisible(bool show) {
    visible = show;
}

void BoardSelectionGrid::DrawFieldQuad() {
    glBegin(GL_QUADS);
    glNormal3f(0.0f, 1.0f, 0.0f);
    EmitRectangle(borderX, borderZ, fieldWidth - borderX, fieldDepth - borderZ);
    glEnd();
}

void BoardSelectionGrid::DrawFieldFrame() {
    const float farX = fieldWidth - frameX;
    const float farZ = fieldDepth - frameZ;
    const float innerFarX = fieldWidth - borderX;
    const float innerFarZ = fieldDepth - borderZ;
    glBegin(GL_QUADS);
    glNormal3f(0.0f, 1.0f, 0.0f);
    EmitRectangle(frameX, frameZ, farX, borderZ);
    EmitRectangle(frameX, borderZ, borderX, innerFarZ);
    EmitRectangle(innerFarX, borderZ, farX, innerFarZ);
    EmitRectangle(frameX, innerFarZ, farX, farZ);
    glEnd();
}

void BoardSelectionGrid::DrawFullQuad() {
    glBegin(GL_QUADS);
    glNormal3f(0.0f, 1.0f, 0.0f);
    EmitRectangle(0.0f, 0.0f, fieldWidth, fieldDepth);
    glEnd();
}

}  // namespace tolvane
