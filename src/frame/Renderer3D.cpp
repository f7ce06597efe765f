#include "frame/Renderer3D.h"

#include <SDL.h>

#include <algorithm>
#include <limits>

#include "assets/Gl.h"
#include "frame/FrameClock.h"
#include "frame/FrameCounter.h"
#include "frame/View3D.h"
#include "game/Game3D.h"
#include "scene/Board3D.h"
#include "scene/Field3D.h"
#include "scene/Glut.h"
#include "scene/TextBox2D.h"

namespace tolvane {

namespace {

constexpr int animatedSlots = 4;           // the slots that a place on the list can fall into
constexpr int selectionBufferSize = 1024;  // unsigned ints
constexpr double pickSize = 5.0;           // pixels
constexpr unsigned int firstFieldName = 100;

constexpr GLbitfield allBuffers =
    GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT | GL_ACCUM_BUFFER_BIT;

void RemovePending(std::vector<DrawAble*>& list, DrawAble*& pending) {
    if (pending == nullptr)
        return;
    const auto entry = std::find(list.begin(), list.end(), pending);
    if (entry == list.end())
        return;
    list.erase(entry);
    pending = nullptr;
}

float DistanceTo(DrawAble* drawable, const Vertex* eye) {
    return Length(Subtract(*drawable->GetPosition(), *eye));
}

}  // namespace

Renderer3D::Renderer3D() : fpsBox(std::make_unique<TextBox2D>(800.0f, 600.0f)) {
    frameClock = FrameClock();
    fpsBox->SetBackground(20, 545, 150, 35, Color(0.0f, 0.0f, 0.6f), 0.5f);
    fpsBox->SetFont(GLUT_BITMAP_HELVETICA_18, Color(0.0f, 0.8f, 0.0f));
}

Renderer3D::~Renderer3D() = default;

void Renderer3D::AddDrawable(DrawAble* drawable) {
    sceneList.push_back(drawable);
}

void Renderer3D::AddOverlay(DrawAble* drawable) {
    overlayList.push_back(drawable);
}

void Renderer3D::RemoveDrawable(DrawAble* drawable) {
    pendingSceneRemoval = drawable;
}

void Renderer3D::RemoveOverlay(DrawAble* drawable) {
    pendingOverlayRemoval = drawable;
}

void Renderer3D::ClearScene() {
    sceneList.clear();
}

void Renderer3D::RenderFrame() {
    frameClock.Step(SDL_GetTicks());

    glClearColor(0.0f, 0.0f, 0.2f, 0.0f);
    glClear(allBuffers);
    view->Update(static_cast<float>(frameClock.frameTime));
    view->ApplyView();
    const Vertex* const eye = view->GetPosition();

    const Vertex* lightPosition = nullptr;
    if (light != nullptr) {
        lightPosition = light->GetPosition();
        light->Draw(drawMode, useDisplayLists, false, blending, eye, lightPosition);
    }
    if (skybox != nullptr)
        DrawWithoutPositions(skybox, false);
    if (showAxes)
        DrawAxes();

    // A software renderer paints the background on its own threads while the scene is on its way.
    glFlush();

    glEnable(GL_TEXTURE_2D);
    glEnable(GL_LIGHTING);
    glPushMatrix();
    UpdateScene(eye);
    DrawScene(false, eye, lightPosition);
    glPopMatrix();

    for (DrawAble* const overlay : overlayList) {
        glPushMatrix();
        DrawWithoutPositions(overlay, false);
        glPopMatrix();
    }
    if (showFps)
        DrawFps();

    // Without a surface the program goes on, but there is nothing to swap.
    if (SDL_GetVideoSurface() != nullptr)
        SDL_GL_SwapBuffers();

    RemovePending(sceneList, pendingSceneRemoval);
    RemovePending(overlayList, pendingOverlayRemoval);
}

void Renderer3D::UpdateScene(const Vertex* eye) {
    const float frameTime = static_cast<float>(frameClock.frameTime);
    for (std::size_t slot = 0; slot < animatedSlots; ++slot)
        accumulatedTime[slot] += frameTime;

    for (DrawAble* const drawable : sceneList) {
        if (!drawable->active)
            continue;
        if (!drawable->IsFinished()) {
            drawable->distance = DistanceTo(drawable, eye);
            continue;
        }
        // Only a figure's script ever ends, and figures are elements of the board.
        if (drawable->UpdateEffects(frameTime, eye))
            game->OnActionFinished(static_cast<Element3D*>(drawable));
        drawable->distance = drawable->skipWhenOutside ? DistanceTo(drawable, eye) : -1.0f;
    }

    std::sort(sceneList.begin(), sceneList.end(),
              [](const DrawAble* a, const DrawAble* b) { return a->distance > b->distance; });

    accumulatedTime[static_cast<std::size_t>(animationSlot)] = 0.0f;
    animationSlot = animationSlot < animatedSlots ? animationSlot + 1 : 0;
}

void Renderer3D::DrawScene(bool selectionPass, const Vertex* eye, const Vertex* lightPosition) {
    bool gridPending = true;
    for (std::size_t i = 0; i < sceneList.size(); ++i) {
        DrawAble* const drawable = sceneList[i];
        if (!IsShown(drawable))
            continue;

        // With the viewer and the last object both beside the board, the see-through grid goes under it.
        if (i + 1 == sceneList.size() && !selectionPass && StandsBesideBoard(eye->x) &&
            StandsBesideBoard(drawable->GetPosition()->x)) {
            DrawGrid(false);
            gridPending = false;
        }

        glPushMatrix();
        glPushName(static_cast<GLuint>(i));
        if (static_cast<int>(i % animatedSlots) == animationSlot)
            drawable->Update(drawMode, accumulatedTime[static_cast<std::size_t>(animationSlot)]);
        drawable->Draw(drawMode, useDisplayLists, selectionPass, blending, eye, lightPosition);
        glPopName();
        glPopMatrix();
    }
    if (gridPending)
        DrawGrid(selectionPass);
}

Element3D* Renderer3D::Pick(int x, int y) {
    std::array<GLuint, selectionBufferSize> buffer{};
    glSelectBuffer(selectionBufferSize, buffer.data());
    std::array<GLint, 4> viewport{};
    glGetIntegerv(GL_VIEWPORT, viewport.data());
    glRenderMode(GL_SELECT);
    glInitNames();

    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    glLoadIdentity();
    gluPickMatrix(x, viewport[3] - y, pickSize, pickSize, viewport.data());
    gluPerspective(view->GetFieldOfView(), static_cast<double>(viewport[2]) / viewport[3],
                   view->GetNearPlane(), view->GetFarPlane());
    glMatrixMode(GL_MODELVIEW);
    DrawForPicking();
    glMatrixMode(GL_PROJECTION);
    glPopMatrix();
    glMatrixMode(GL_MODELVIEW);
    glFlush();

    const int hits = glRenderMode(GL_RENDER);
    return hits != 0 ? PickFromHits(hits, buffer.data()) : nullptr;
}

void Renderer3D::DrawForPicking() {
    frameClock.Step(SDL_GetTicks());
    glClearColor(0.0f, 0.0f, 0.0f, 0.0f);
    glClear(allBuffers);
    view->Update(static_cast<float>(frameClock.frameTime));
    view->ApplyView();
    glDisable(GL_LIGHTING);
    DrawScene(true, nullptr, nullptr);
    glEnable(GL_LIGHTING);
}

Element3D* Renderer3D::PickFromHits(int hits, unsigned int* buffer) {
    unsigned int bestDepth = std::numeric_limits<unsigned int>::max();
    const unsigned int* best = nullptr;
    const unsigned int* record = buffer;
    for (int hit = 0; hit < hits; ++hit) {
        const unsigned int nameCount = record[0];
        const unsigned int minDepth = record[1];
        if (minDepth < bestDepth) {
            bestDepth = minDepth;
            best = record;
        }
        record += 3 + nameCount;
    }
    if (best == nullptr || best[0] == 0)
        return nullptr;

    // Only figures and the grid draw anything while picking, so what was hit is an element of the board.
    const unsigned int name = best[3];
    if (name < firstFieldName)
        return static_cast<Element3D*>(sceneList[name]);
    return selectionGrid->GetField(name - firstFieldName);
}

void Renderer3D::DrawWithoutPositions(DrawAble* drawable, bool selectionPass) {
    drawable->Draw(drawMode, useDisplayLists, selectionPass, blending, nullptr, nullptr);
}

void Renderer3D::DrawGrid(bool selectionPass) {
    if (selectionGrid == nullptr)
        return;
    glPushMatrix();
    DrawWithoutPositions(selectionGrid, selectionPass);
    glPopMatrix();
}

void Renderer3D::DrawAxes() {
    struct Axis {
        Vertex end;
        Vertex color;
    };
    static constexpr float reach = 5.0f;
    static constexpr std::array<Axis, 3> axes{{
        {.end = {reach, 0.0f, 0.0f}, .color = {1.0f, 0.0f, 0.0f}},
        {.end = {0.0f, reach, 0.0f}, .color = {0.0f, 0.0f, 1.0f}},
        {.end = {0.0f, 0.0f, reach}, .color = {0.0f, 1.0f, 0.0f}},
    }};
    glLineWidth(4.0f);
    glBegin(GL_LINES);
    for (const Axis& axis : axes) {
        glColor3f(axis.color.x, axis.color.y, axis.color.z);
        glVertex3f(-axis.end.x, -axis.end.y, -axis.end.z);
        glVertex3f(axis.end.x, axis.end.y, axis.end.z);
    }
    glEnd();
    glLineWidth(1.0f);
}

void Renderer3D::DrawFps() {
    frameCounter.Count(frameClock.ticks);
    fpsBox->SetText(frameCounter.Text(), 30, 568);
    DrawWithoutPositions(fpsBox.get(), false);
}

bool Renderer3D::IsShown(DrawAble* drawable) const {
    if (!drawable->active)
        return false;
    if (!frustumCulling || (drawable->IsFinished() && !drawable->skipWhenOutside))
        return true;
    // The offset along z serves for the height as well; the models' boxes are made to suit.
    const Vertex& position = *drawable->GetPosition();
    const Vertex& offset = drawable->boundCentre;
    return view->SphereInFrustum(offset.x + position.x, offset.z + position.y, offset.z + position.z,
                                 drawable->boundRadius);
}

bool Renderer3D::StandsBesideBoard(float x) const {
    return selectionGrid != nullptr && (x < selectionGrid->minX || x > selectionGrid->maxX);
}

}  // namespace tolvane
