#include "scene/Field3D.h"

namespace tolvane {

Field3D::Field3D(unsigned int atColumn, unsigned int atRow) : Element3D(atColumn, atRow) {
    DrawAble::BuildDisplayLists();
}

void Field3D::Draw(int, bool, bool, bool, const Vertex*, const Vertex*) {}

void Field3D::Update(int, float) {}

void Field3D::SetHighlight(int code) {
    highlight = code;
}

int Field3D::GetHighlight() {
    return highlight;
}

}  // namespace tolvane
