#include "assets/MD2_Model.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <iostream>
#include <string_view>
#include <utility>

#include "assets/Gl.h"

namespace tolvane {

namespace {

std::string_view NameOf(const MD2_Frame& frame) {
    const auto end = std::find(frame.name.begin(), frame.name.end(), '\0');
    return {frame.name.data(), static_cast<std::size_t>(end - frame.name.begin())};
}

// A frame is named after its group and its number within it. Three digits without a leading zero are two
// digits of number behind one that belongs to the group: attack101 is frame 01 of attack1.
std::string_view GroupNameOf(std::string_view frameName) {
    std::size_t digits = std::min(frameName.find_first_of("0123456789"), frameName.size());
    if (digits + 3 == frameName.size() && frameName[digits] != '0')
        ++digits;
    return frameName.substr(0, digits);
}

void RepairIndex(std::uint16_t& index, std::size_t count) {
    if (index >= count)
        index = 0;
}

void SelectFirstTextureUnit() {
    if (glClientActiveTexture)
        glClientActiveTexture(GL_TEXTURE0);
}

void EnableArrays() {
    glEnableClientState(GL_VERTEX_ARRAY);
    glEnableClientState(GL_NORMAL_ARRAY);
    SelectFirstTextureUnit();
    glEnableClientState(GL_TEXTURE_COORD_ARRAY);
}

void DisableArrays() {
    glDisableClientState(GL_TEXTURE_COORD_ARRAY);
    SelectFirstTextureUnit();
    glDisableClientState(GL_NORMAL_ARRAY);
    glDisableClientState(GL_VERTEX_ARRAY);
}

const void* BufferOffset(std::size_t bytes) {
    return std::bit_cast<const void*>(bytes);
}

}  // namespace

MD2_Model::MD2_Model(const MD2_Header& fileHeader, std::vector<MD2_TexCoord> texCoordBlock,
                     std::vector<MD2_Triangle> triangleBlock, std::vector<MD2_Frame> frameBlock)
    : header(fileHeader),
      fileTexCoords(std::move(texCoordBlock)),
      triangles(std::move(triangleBlock)),
      frames(std::move(frameBlock)) {
    CompleteBlocks();
    RepairIndices();
    GroupFrames();
    BuildTexturePoints();
    BuildTextureCoordBuffer();
}

MD2_Model::~MD2_Model() {
    if (textureCoordBuffer > 0)
        glDeleteBuffersARB(1, &textureCoordBuffer);
}

const MD2Anim* MD2_Model::GetAnimation(const std::string& name) const {
    const auto found = animations.find(name);
    return found == animations.end() ? nullptr : &found->second;
}

void MD2_Model::CompleteBlocks() {
    if (frames.empty())
        frames.emplace_back();
    if (fileTexCoords.empty())
        fileTexCoords.emplace_back();
    const std::size_t vertexCount = std::max<std::size_t>(frames.front().vertices.size(), 1);
    for (MD2_Frame& frame : frames)
        frame.vertices.resize(vertexCount);
    header.numVertices = static_cast<std::int32_t>(vertexCount);
    header.numTexCoords = static_cast<std::int32_t>(fileTexCoords.size());
    header.numTriangles = static_cast<std::int32_t>(triangles.size());
    header.numFrames = static_cast<std::int32_t>(frames.size());
}

void MD2_Model::RepairIndices() {
    const std::size_t vertexCount = frames.front().vertices.size();
    for (MD2_Triangle& triangle : triangles) {
        for (std::uint16_t& index : triangle.vertexIndices)
            RepairIndex(index, vertexCount);
        for (std::uint16_t& index : triangle.texCoordIndices)
            RepairIndex(index, fileTexCoords.size());
    }
}

void MD2_Model::GroupFrames() {
    std::string currentName;
    MD2Anim group;
    const auto insertGroup = [&] {
        group.frameCount = group.lastFrame - group.firstFrame;
        animations.emplace(currentName, group);
    };
    for (int i = 0; i < header.numFrames; ++i) {
        const std::string_view name = GroupNameOf(NameOf(frames[static_cast<std::size_t>(i)]));
        if (name == currentName) {
            group.lastFrame = i;
            continue;
        }
        if (i > 0)
            insertGroup();
        group.firstFrame = group.lastFrame = i;
        currentName = name;
    }
    insertGroup();
}

// The file counts t from the top of the skin, GL from the bottom.
void MD2_Model::BuildTexturePoints() {
    const auto skinWidth = static_cast<float>(header.skinWidth);
    const auto skinHeight = static_cast<float>(header.skinHeight);
    texCoords.reserve(triangles.size() * 3);
    for (const MD2_Triangle& triangle : triangles) {
        for (const std::uint16_t index : triangle.texCoordIndices) {
            const MD2_TexCoord& pixel = fileTexCoords[index];
            texCoords.push_back({pixel.s / skinWidth, 1.0f - pixel.t / skinHeight});
        }
    }
}

void MD2_Model::BuildTextureCoordBuffer() {
    if (!glGenBuffersARB)
        return;
    glGenBuffersARB(1, &textureCoordBuffer);
    glBindBufferARB(GL_ARRAY_BUFFER, textureCoordBuffer);
    glBufferDataARB(GL_ARRAY_BUFFER, static_cast<GLsizeiptrARB>(texCoords.size() * sizeof(MD2_TexturePoint)),
                    texCoords.data(), GL_STATIC_DRAW);
    glBindBufferARB(GL_ARRAY_BUFFER, 0);
    std::cout << " textureBuffer init - OK :: " << textureCoordBuffer << '\n';
}

void MD2_Model::DrawCorners() const {
    glDrawArrays(GL_TRIANGLES, 0, header.numTriangles * 3);
}

void MD2_Model::DrawImmediate(const float* vertices, const float* normals) const {
    glBegin(GL_TRIANGLES);
    for (std::size_t i = 0; i < texCoords.size(); ++i) {
        glTexCoord2fv(&texCoords[i].u);
        glNormal3fv(normals + i * 3);
        glVertex3fv(vertices + i * 3);
    }
    glEnd();
}

void MD2_Model::DrawVertexArray(const float* vertices, const float* normals) const {
    EnableArrays();
    glVertexPointer(3, GL_FLOAT, 0, vertices);
    glTexCoordPointer(2, GL_FLOAT, 0, texCoords.data());
    glNormalPointer(GL_FLOAT, 0, normals);
    DrawCorners();
    DisableArrays();
}

void MD2_Model::DrawVBO(unsigned int vertexBuffer) const {
    if (textureCoordBuffer == 0 || vertexBuffer == 0)
        return;
    EnableArrays();
    glBindBufferARB(GL_ARRAY_BUFFER, textureCoordBuffer);
    glTexCoordPointer(2, GL_FLOAT, 0, BufferOffset(0));
    glBindBufferARB(GL_ARRAY_BUFFER, vertexBuffer);
    glNormalPointer(GL_FLOAT, 0, BufferOffset(triangles.size() * 3 * sizeof(float[3])));
    glVertexPointer(3, GL_FLOAT, 0, BufferOffset(0));
    DrawCorners();
    DisableArrays();
    glBindBufferARB(GL_ARRAY_BUFFER, 0);
}

}  // namespace tolvane
