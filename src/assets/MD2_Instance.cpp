#include "assets/MD2_Instance.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <iostream>

#include "assets/Gl.h"
#include "assets/MD2_VertexNormals.h"
#include "assets/Shader.h"

namespace tolvane {

namespace {

constexpr float framesPerSecond = 10.0f;  // of a clip at speed 1
constexpr int vertexBufferMode = 0;

const MD2_Normal& NormalOf(const MD2_Vertex& vertex) {
    return MD2_VertexNormals[static_cast<std::size_t>(vertex.normalIndex)];
}

static_assert(sizeof(Vertex) == 3 * sizeof(float));

// In one piece, because this is what a frame does most often.
float* Put(float* target, const Vertex& value) {
    std::memcpy(target, &value, sizeof(value));
    return target + 3;
}

}  // namespace

MD2_Instance::MD2_Instance(MD2_Model* sharedModel, unsigned int textureId, unsigned int normalMapId,
                           float factor)
    : header(&sharedModel->GetHeader()),
      triangles(&sharedModel->GetTriangles()),
      frames(&sharedModel->GetFrames()),
      model(sharedModel),
      scale(factor),
      vertexArray(CornerFloats()),
      normalArray(CornerFloats()),
      blended(frames->front().vertices.size()) {
    material.SetTextureId(textureId);
    material.SetNormalMapId(normalMapId);
    BuildFirstMesh();
    BuildBox();
    BuildVertexBuffer();
}

MD2_Instance::~MD2_Instance() {
    if (vertexBuffer > 0)
        glDeleteBuffersARB(1, &vertexBuffer);
    if (ownsAnimationList)
        delete animationList;
}

void MD2_Instance::BuildFirstMesh() {
    const std::vector<MD2_Vertex>& vertices = frames->front().vertices;
    for (std::size_t i = 0; i < blended.size(); ++i) {
        const MD2_Vertex& vertex = vertices[i];
        const MD2_Normal& normal = NormalOf(vertex);
        blended[i] = {{vertex.x * scale, vertex.y * scale, vertex.z * scale}, {normal.x, normal.y, normal.z}};
    }
    CopyCorners(vertexArray.data(), normalArray.data());
}

void MD2_Instance::BuildBox() {
    if (vertexArray.empty())
        return;
    minX = maxX = vertexArray[0];
    minY = maxY = vertexArray[1];
    minZ = maxZ = vertexArray[2];
    for (std::size_t i = 0; i < vertexArray.size(); i += 3) {
        minX = std::min(minX, vertexArray[i]);
        maxX = std::max(maxX, vertexArray[i]);
        minY = std::min(minY, vertexArray[i + 1]);
        maxY = std::max(maxY, vertexArray[i + 1]);
        minZ = std::min(minZ, vertexArray[i + 2]);
        maxZ = std::max(maxZ, vertexArray[i + 2]);
    }
    boundCentre = {(maxX + minX) / 2.0f, (maxY + minY) / 2.0f, (maxZ + minZ) / 2.0f};
    boundRadius = std::max({maxX - boundCentre.x, maxY - boundCentre.y, maxZ - boundCentre.z});
}

void MD2_Instance::BuildVertexBuffer() {
    const auto half = static_cast<GLsizeiptrARB>(CornerFloats() * sizeof(float));
    GLint bufferSize = 0;
    std::cout << "Creating VBO\n";
    if (glGenBuffersARB)
        glGenBuffersARB(1, &vertexBuffer);
    std::cout << "VBO CREATED\n";
    if (vertexBuffer > 0) {
        glBindBufferARB(GL_ARRAY_BUFFER, vertexBuffer);
        glBufferDataARB(GL_ARRAY_BUFFER, half * 2, nullptr, GL_STREAM_DRAW);
        glBufferSubDataARB(GL_ARRAY_BUFFER, 0, half, vertexArray.data());
        glBufferSubDataARB(GL_ARRAY_BUFFER, half, half, normalArray.data());
        glGetBufferParameterivARB(GL_ARRAY_BUFFER, GL_BUFFER_SIZE, &bufferSize);
        glBindBufferARB(GL_ARRAY_BUFFER, 0);
    }
    PrintStatistics(bufferSize);
}

void MD2_Instance::PrintStatistics(int bufferSize) const {
    const std::string line(52, '+');
    std::cout << '\n'
              << line << '\n'
              << "+++ VBO ID: " << vertexBuffer << " :: Vertex and Normal Array in VBO: " << bufferSize
              << " bytes\n"
              << "+++ Model Statistics:: Vertices = " << header->numVertices
              << " --- Triangles: " << header->numTriangles << '\n'
              << line << "\n\n";
}

void MD2_Instance::SetAnimation(const MD2_Animation& animation) {
    if (animation.name == animationName && animation.mode == mode)
        return;
    const MD2Anim* group = model->GetAnimation(animation.name);
    if (!group)
        return;

    animationName = animation.name;
    firstFrame = currentFrame = group->firstFrame;
    nextFrame = currentFrame + 1;
    lastFrame = group->lastFrame;
    frameCount = group->frameCount;
    speed = animation.speed;
    mode = animation.mode;
    if (mode == MD2_AnimationMode::Freeze)
        forceUpdate = true;
    interpolation = 0.0f;
}

void MD2_Instance::PlayAnimationList(AnimationList* list) {
    PlayList(list, true);
}

void MD2_Instance::PlayBorrowedList(AnimationList* list) {
    PlayList(list, false);
}

void MD2_Instance::PlayList(AnimationList* list, bool owned) {
    animationList = list;
    ownsAnimationList = owned;
    NextAnimation();
}

void MD2_Instance::NextAnimation() {
    if (!animationList || animationList->GetCount() == 0)
        return;
    MD2_Animation animation;
    animationList->Next(animation);
    SetAnimation(animation);
}

bool MD2_Instance::Animate(int renderMode, float dt) {
    if (forceUpdate) {
        InterpolateFrames(renderMode);
        return true;
    }
    if (mode == MD2_AnimationMode::Freeze)
        return true;

    animationFinished = false;
    interpolation += framesPerSecond * dt * speed;
    if (interpolation >= 1.0f)
        AdvanceFrame();
    InterpolateFrames(renderMode);
    return animationFinished;
}

void MD2_Instance::AdvanceFrame() {
    interpolation = 0.0f;
    ++currentFrame;
    nextFrame = currentFrame + 1;
    if (mode == MD2_AnimationMode::Sequence) {
        AdvanceSequence();
        return;
    }
    if (currentFrame > lastFrame)
        EndPass();
    if (nextFrame > lastFrame)
        nextFrame = firstFrame;
}

// The last frame of a clip in a sequence is only blended towards.
void MD2_Instance::AdvanceSequence() {
    if (currentFrame <= lastFrame - 1 || !animationList)
        return;
    animationFinished = animationList->GetNext() >= animationList->GetCount();
    NextAnimation();
}

void MD2_Instance::EndPass() {
    animationFinished = true;
    if (mode == MD2_AnimationMode::Once) {
        mode = MD2_AnimationMode::Freeze;
        return;
    }
    currentFrame = firstFrame;
    nextFrame = currentFrame + 1;
}

void MD2_Instance::InterpolateFrames(int renderMode) {
    if (!forceUpdate && mode == MD2_AnimationMode::Freeze)
        return;
    forceUpdate = false;
    BlendVertices();
    if (renderMode == vertexBufferMode)
        WriteVertexBuffer();
    else
        CopyCorners(vertexArray.data(), normalArray.data());
}

const MD2_Frame& MD2_Instance::FrameAt(int index) const {
    const auto i = static_cast<std::size_t>(index);
    return i < frames->size() ? (*frames)[i] : frames->front();
}

// Triangles share vertices: each vertex is blended once, and copied to its corners afterwards.
void MD2_Instance::BlendVertices() {
    const MD2_Vertex* from = FrameAt(currentFrame).vertices.data();
    const MD2_Vertex* to = FrameAt(nextFrame).vertices.data();
    const float t = interpolation;
    const float factor = scale;
    for (BlendedVertex& target : blended) {
        const MD2_Normal& fromNormal = NormalOf(*from);
        const MD2_Normal& toNormal = NormalOf(*to);
        const float x = fromNormal.x + t * (toNormal.x - fromNormal.x);
        const float y = fromNormal.y + t * (toNormal.y - fromNormal.y);
        const float z = fromNormal.z + t * (toNormal.z - fromNormal.z);
        const float inverseLength = 1.0f / std::sqrt(x * x + y * y + z * z);
        target = {{(from->x + t * (to->x - from->x)) * factor, (from->y + t * (to->y - from->y)) * factor,
                   (from->z + t * (to->z - from->z)) * factor},
                  {x * inverseLength, y * inverseLength, z * inverseLength}};
        ++from;
        ++to;
    }
}

void MD2_Instance::CopyCorners(float* vertices, float* normals) const {
    const BlendedVertex* source = blended.data();
    for (const MD2_Triangle& triangle : *triangles) {
        for (const std::uint16_t index : triangle.vertexIndices) {
            vertices = Put(vertices, source[index].position);
            normals = Put(normals, source[index].normal);
        }
    }
}

void MD2_Instance::WriteVertexBuffer() const {
    if (vertexBuffer == 0 || triangles->empty())
        return;
    glBindBufferARB(GL_ARRAY_BUFFER, vertexBuffer);
    if (auto* mapped = static_cast<float*>(glMapBufferARB(GL_ARRAY_BUFFER, GL_READ_WRITE))) {
        CopyCorners(mapped, mapped + CornerFloats());
        glUnmapBufferARB(GL_ARRAY_BUFFER);
    }
    glBindBufferARB(GL_ARRAY_BUFFER, 0);
}

void MD2_Instance::DrawVBO(bool selectionPass, Shader* shader, const Vertex* eyePosition,
                           const Vertex* lightPosition) {
    if (!selectionPass)
        material.Apply(shader, eyePosition, lightPosition);
    model->DrawVBO(vertexBuffer);
    EndDraw();
}

void MD2_Instance::DrawVertexArray(bool selectionPass, Shader* shader, const Vertex* eyePosition,
                                   const Vertex* lightPosition) {
    if (!selectionPass)
        material.Apply(shader, eyePosition, lightPosition);
    model->DrawVertexArray(vertexArray.data(), normalArray.data());
    EndDraw();
}

void MD2_Instance::DrawImmediate(bool selectionPass, Shader* shader, const Vertex* eyePosition,
                                 const Vertex* lightPosition) {
    if (!selectionPass)
        material.Apply(shader, eyePosition, lightPosition);
    model->DrawImmediate(vertexArray.data(), normalArray.data());
    EndDraw();
}

void MD2_Instance::EndDraw() {
    Shader::Disable();
    glEnable(GL_COLOR_MATERIAL);
}

}  // namespace tolvane
