#pragma once

#include <array>
#include <memory>
#include <vector>

#include "assets/Vertex.h"

namespace tolvane {

class Board3D;
class DrawAble;
class Element3D;
class Game3D;
class TextBox2D;
class View3D;

// Owns the lists of what is on screen and runs one frame; the same drawing code turns a mouse position into
// a figure or a field. Owns none of the drawables but the box of the frame counter.
class Renderer3D {
public:
    Renderer3D();
    ~Renderer3D();
    Renderer3D(const Renderer3D&) = delete;
    Renderer3D& operator=(const Renderer3D&) = delete;

    bool blending = true;
    bool frustumCulling = true;

    // What there is to draw. All pointers must outlive the frames; none is owned.
    void SetSkybox(DrawAble* drawable) { skybox = drawable; }
    void SetSelectionGrid(Board3D* grid) { selectionGrid = grid; }
    void SetLight(DrawAble* drawable) { light = drawable; }
    void SetView(View3D* camera) { view = camera; }
    void SetGame(Game3D* playedGame) { game = playedGame; }
    void AddDrawable(DrawAble* drawable);
    void AddOverlay(DrawAble* drawable);
    // Taken off after the frame. One removal a list can wait; a second one replaces it.
    void RemoveDrawable(DrawAble* drawable);
    void RemoveOverlay(DrawAble* drawable);
    void ClearScene();
    const std::vector<DrawAble*>& GetSceneList() const { return sceneList; }
    const std::vector<DrawAble*>& GetOverlayList() const { return overlayList; }

    // One frame: clock, camera, light, sky, scene, overlays, swap, removals.
    void RenderFrame();
    // Runs scripts and effects for the clock's frame time and sorts the scene, the farthest first.
    void UpdateScene(const Vertex* eye);
    void DrawScene(bool selectionPass, const Vertex* eye, const Vertex* lightPosition);

    // What stands at a place of the window, in pixels from its top left: a figure, a field or null. Costs a
    // step of the clock.
    Element3D* Pick(int x, int y);
    void DrawForPicking();
    // The nearest of the hit records that GL's selection mode left in the buffer, or null.
    Element3D* PickFromHits(int hits, unsigned int* buffer);

    bool GetShowFps() const { return showFps; }
    void SetShowFps(bool show) { showFps = show; }
    int GetDrawMode() const { return drawMode; }
    void SetDrawMode(int mode) { drawMode = mode; }
    bool GetUseDisplayLists() const { return useDisplayLists; }
    void SetUseDisplayLists(bool use) { useDisplayLists = use; }

private:
    void DrawWithoutPositions(DrawAble* drawable, bool selectionPass);
    void DrawGrid(bool selectionPass);
    void DrawAxes();
    void DrawFps();
    bool IsShown(DrawAble* drawable) const;
    bool StandsBesideBoard(float x) const;

    DrawAble* pendingOverlayRemoval = nullptr;
    DrawAble* skybox = nullptr;
    Board3D* selectionGrid = nullptr;
    DrawAble* light = nullptr;
    std::vector<DrawAble*> sceneList;
    DrawAble* pendingSceneRemoval = nullptr;
    std::vector<DrawAble*> overlayList;
    bool showAxes = false;
    View3D* view = nullptr;
    Game3D* game = nullptr;
    bool showFps = false;
    std::unique_ptr<TextBox2D> fpsBox;
    // Each drawable animates in one frame of five: in that of its slot, with the time the slot is owed.
    int animationSlot = 0;                   // 0 to 4
    std::array<float, 5> accumulatedTime{};  // seconds
    int drawMode = 0;
    bool useDisplayLists = true;
};

}  // namespace tolvane
