#pragma once

#include <SDL.h>

namespace tolvane {

class Game3D;
class Renderer3D;
class View3D;

// Turns keys and mouse releases into camera motion, render switches and game calls. Must not be used before
// it was given its three partners, none of which it owns.
class InputHandler {
public:
    InputHandler() = default;
    InputHandler(View3D* camera, Renderer3D* sceneRenderer, Game3D* playedGame);

    // What the frame loop has to do about a key.
    static constexpr int keyDone = 0;
    static constexpr int keyQuits = 1;
    static constexpr int keyTogglesFullscreen = 2;

    int OnKeyDown(const SDL_keysym* key);
    int OnKeyUp(const SDL_keysym* key);
    // Window coordinates from the top left, in pixels. Every button picks.
    int OnMouseUp(int x, int y);

    // Lets the mouse pick; the cursor shows exactly while it may.
    void SetMouseEnabled(bool enabled);
    bool IsMouseEnabled() const { return mouseEnabled; }

private:
    void ToggleLighting();
    void ToggleWireframe();
    void NextDrawMode();
    void ToggleDisplayLists();
    void ToggleFrustumCulling();
    void ToggleBlending();

    bool mouseEnabled = true;
    bool wireframe = false;
    bool lighting = true;
    View3D* view = nullptr;          // not owned
    Renderer3D* renderer = nullptr;  // not owned
    Game3D* game = nullptr;          // not owned
};

}  // namespace tolvane
