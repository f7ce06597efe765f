#pragma once

#include <SDL.h>

#include <cstdint>

#include "assets/MD2_Store.h"
#include "assets/ShaderStore.h"
#include "assets/SoundManager.h"
#include "assets/TextureHandler.h"
#include "frame/InputHandler.h"
#include "frame/Renderer3D.h"
#include "frame/View3D.h"

namespace tolvane {

class BoardSelectionGrid;
class DrawAble;
class Game3D;

// The frame around the game: window, GL state, camera, renderer, input, asset stores and the loop. No
// failure of the video layer stops the program; each prints its line and goes on with whatever there is.
class Engine3D {
public:
    // Asks on the console whether to use full screen, and opens the window (pixels, bits a pixel).
    Engine3D(int windowWidth, int windowHeight, int depth);
    Engine3D(const Engine3D&) = delete;
    Engine3D& operator=(const Engine3D&) = delete;

    // The window and what stands on it. Sizes in pixels.
    void SetVideoMode(int windowWidth, int windowHeight, int depth);
    void InitGLState();
    void Resize(int windowWidth, int windowHeight);

    // The game, not owned, must be set before the loop starts and outlive it.
    void SetGame(Game3D* playedGame);
    // Builds the background and runs frames until the user quits; closes the window.
    void MainLoop();

    // What game and scripts work with; all of it lives as long as this object.
    InputHandler& GetInput() { return input; }
    TextureHandler* GetTextures() { return &textures; }
    MD2_Store* GetModels() { return &models; }
    ShaderStore* GetShaders() { return &shaders; }
    SoundManager* GetSounds() { return &sounds; }
    Renderer3D& GetRenderer() { return renderer; }
    View3D& GetView() { return view; }
    // The size the window was opened with; a resize does not change it.
    int GetWidth() const { return width; }
    int GetHeight() const { return height; }

    // Handed on to the renderer, which owns none of it.
    void SetSelectionGrid(BoardSelectionGrid* grid);
    void AddDrawable(DrawAble* drawable) { renderer.AddDrawable(drawable); }
    void RemoveDrawable(DrawAble* drawable) { renderer.RemoveDrawable(drawable); }
    void AddOverlay(DrawAble* drawable) { renderer.AddOverlay(drawable); }
    void ClearScene() { renderer.ClearScene(); }

    // Takes one event of the queue to whom it concerns; true when it asks to quit.
    bool Dispatch(const SDL_Event& event);

private:
    void StartVideo();
    bool OpenSurface(int windowWidth, int windowHeight, int depth, bool accumulation, bool multisampling);
    void OpenWindow(int windowWidth, int windowHeight, int depth);
    void OnVideoResize(int newWidth, int newHeight);

    bool fullscreen = false;
    SDL_Surface* screen = nullptr;  // not owned
    std::uint32_t videoFlags = 0;
    Game3D* game = nullptr;  // not owned
    View3D view;
    Renderer3D renderer;
    InputHandler input;
    float fieldOfView = 60.0f;  // degrees, vertical
    float nearPlane = 0.1f;     // world units
    float farPlane = 400.0f;
    int width = 0;
    int height = 0;
    TextureHandler textures;
    MD2_Store models;
    ShaderStore shaders;
    SoundManager sounds;
};

}  // namespace tolvane
