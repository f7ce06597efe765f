#pragma once

#include <vector>

#include "scene/Board3D.h"
#include "scene/Field3D.h"

namespace tolvane {

// The see-through chequer just above the board: it marks fields with coloured frames, and its squares are
// what a click on a field hits, by the pick names 100 to 163 (100 plus the field's index).
class BoardSelectionGrid final : public Board3D {
public:
    // The size of one field along x and z, world units. Needs a GL context.
    BoardSelectionGrid(float widthOfField, float depthOfField);
    BoardSelectionGrid(const BoardSelectionGrid&) = delete;
    BoardSelectionGrid& operator=(const BoardSelectionGrid&) = delete;

    // Draws the squares and the frames of the marked fields or, in the selection pass, names the fields.
    // Leaves texturing and lighting on, blending off.
    void Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
              const Vertex* eyePosition, const Vertex* lightPosition) override;
    void Update(int renderMode, float dt) override;
    void BuildDisplayLists() override;

    // index is row times 8 plus column, 0 to 63; any other throws std::out_of_range. The grid keeps the
    // field.
    Field3D* GetField(unsigned int index) override;
    // Hidden, the grid neither shows nor can be picked.
    virtual void SetVisible(bool show);
    // One field's geometry, from its lower corner towards positive x and z.
    virtual void DrawFieldQuad();
    virtual void DrawFieldFrame();
    virtual void DrawFullQuad();

    Field3D* GetFieldAt(unsigned int column, unsigned int row) { return GetField(column + row * 8); }

private:
    void DrawPickNames(bool useDisplayLists);
    void DrawFields(bool useDisplayLists);
    void DrawHighlight(int code, bool useDisplayLists);

    float fieldWidth;
    float fieldDepth;
    float borderX;  // inner margin of a field
    float borderZ;
    float frameX;  // outer margin of the frame
    float frameZ;
    std::vector<Field3D> fields;  // never grows after construction: fields are known by address
    unsigned int frameDisplayList = 0;
    bool visible = true;
};

}  // namespace tolvane
