#include "scene/Skybox.h"

#include <array>
#include <cstddef>

#include "assets/Gl.h"
#include "scene/DisplayList.h"

namespace tolvane {

namespace {

// A corner of a face: texture coordinates, then the place in units of half an edge.
struct Corner {
    float u, v;
    float x, y, z;
};

using Face = std::array<Corner, 4>;

// In the order of the textures. The first picture after up and down is the one seen along negative z.
constexpr std::array faces{
    Face{{{1, 1, -1, 1, -1}, {0, 1, -1, 1, 1}, {0, 0, 1, 1, 1}, {1, 0, 1, 1, -1}}},      // top
    Face{{{1, 1, 1, -1, -1}, {0, 1, 1, -1, 1}, {0, 0, -1, -1, 1}, {1, 0, -1, -1, -1}}},  // bottom
    Face{{{0, 0, -1, -1, -1}, {1, 0, -1, 1, -1}, {1, 1, 1, 1, -1}, {0, 1, 1, -1, -1}}},  // back
    Face{{{0, 0, 1, -1, 1}, {1, 0, 1, 1, 1}, {1, 1, -1, 1, 1}, {0, 1, -1, -1, 1}}},      // front
    Face{{{0, 1, 1, -1, 1}, {0, 0, 1, -1, -1}, {1, 0, 1, 1, -1}, {1, 1, 1, 1, 1}}},      // right
    Face{{{0, 1, -1, -1, -1}, {0, 0, -1, -1, 1}, {1, 0, -1, 1, 1}, {1, 1, -1, 1, -1}}},  // left
};
static_assert(faces.size() == 6);

}  // namespace

Skybox::Skybox(float halfEdge, const std::vector<unsigned int>& sixTextures)
    : size(halfEdge), textures(sixTextures) {
    BuildDisplayLists();
}

void Skybox::Draw(int, bool useDisplayLists, bool selectionPass, bool, const Vertex*, const Vertex*) {
    if (selectionPass)
        return;

    glDepthMask(GL_FALSE);
    glDisable(GL_LIGHTING);
    if (useDisplayLists)
        glCallList(displayList);
    else
        DrawCube();
    glDepthMask(GL_TRUE);
    glEnable(GL_LIGHTING);
}

void Skybox::Update(int, float) {}

void Skybox::BuildDisplayLists() {
    displayList = CompileDisplayList([this] { DrawCube(); });
}

void Skybox::DrawCube() const {
    glEnable(GL_TEXTURE_2D);
    glColor4f(1.0f, 1.0f, 1.0f, 1.0f);
    for (std::size_t i = 0; i < faces.size(); ++i) {
        glBindTexture(GL_TEXTURE_2D, textures.at(i));
        glBegin(GL_QUADS);
        for (const Corner& corner : faces[i]) {
            glTexCoord2f(corner.u, corner.v);
            glVertex3f(corner.x * size, corner.y * size, corner.z * size);
        }
        glEnd();
    }
}

}  // namespace tolvane
