#include "frame/Engine3D.h"

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include "assets/Gl.h"
#include "assets/MD2_Instance.h"
#include "frame/FrameClock.h"
#include "game/Game3D.h"
#include "scene/BoardSelectionGrid.h"
#include "scene/Glut.h"
#include "scene/Skybox.h"
#include "scene/Sun.h"

namespace tolvane {

namespace {

constexpr int fullscreenWidth = 1024;
constexpr int fullscreenHeight = 768;
constexpr int resizeDepth = 16;
constexpr float skySize = 200.0f;
constexpr float startHeight = 1.0f;
constexpr float startPitch = -40.0f;
constexpr float sunHeight = 30.0f;
constexpr float sunScale = 0.125f;

constexpr std::array<const char*, 6> skyFaces{
    "textures/skybox/verypurple_up2.tga",    "textures/skybox/verypurple_down2.tga",
    "textures/skybox/verypurple_front2.tga", "textures/skybox/verypurple_back2.tga",
    "textures/skybox/verypurple_left2.tga",  "textures/skybox/verypurple_right2.tga",
};

struct GlAttribute {
    SDL_GLattr name;
    int value;
};

constexpr std::array<GlAttribute, 4> colorAttributes{{
    {.name = SDL_GL_RED_SIZE, .value = 8},
    {.name = SDL_GL_GREEN_SIZE, .value = 8},
    {.name = SDL_GL_BLUE_SIZE, .value = 8},
    {.name = SDL_GL_ALPHA_SIZE, .value = 8},
}};

constexpr std::array<GlAttribute, 4> accumulationAttributes{{
    {.name = SDL_GL_ACCUM_RED_SIZE, .value = 16},
    {.name = SDL_GL_ACCUM_GREEN_SIZE, .value = 16},
    {.name = SDL_GL_ACCUM_BLUE_SIZE, .value = 16},
    {.name = SDL_GL_ACCUM_ALPHA_SIZE, .value = 16},
}};

constexpr std::array<GlAttribute, 3> bufferAttributes{{
    {.name = SDL_GL_DEPTH_SIZE, .value = 16},
    {.name = SDL_GL_DOUBLEBUFFER, .value = 1},
    {.name = SDL_GL_STENCIL_SIZE, .value = 8},
}};

constexpr std::array<GlAttribute, 2> multisamplingAttributes{{
    {.name = SDL_GL_MULTISAMPLEBUFFERS, .value = 1},
    {.name = SDL_GL_MULTISAMPLESAMPLES, .value = 2},
}};

template <typename Table>
void SetAttributes(const Table& table, bool wanted = true) {
    for (const auto& [name, value] : table)
        SDL_GL_SetAttribute(name, wanted ? value : 0);
}

// What a window is asked for, best first. No reader misses the accumulation buffer, and few drivers have it
// together with multisampling.
struct WindowWish {
    bool accumulation;
    bool multisampling;
};

constexpr std::array<WindowWish, 4> windowWishes{{
    {.accumulation = true, .multisampling = true},
    {.accumulation = false, .multisampling = true},
    {.accumulation = true, .multisampling = false},
    {.accumulation = false, .multisampling = false},
}};

void InitGlut() {
    if (glutGet(GLUT_INIT_STATE) != 0)
        return;
    int count = 1;
    std::array<char, 8> name{"tolvane"};
    std::array<char*, 2> arguments{name.data(), nullptr};
    glutInit(&count, arguments.data());
}

// The software renderer's own switches, read when the window opens; no other driver knows them. It then
// blends two sizes of a picture only where they lie far apart, and estimates which to take: a tenth of a
// frame's time, and no eye tells the difference. Whoever has set the switches already keeps them.
void AskForQuickFiltering() {
    setenv("GALLIVM_PERF", "brilinear,rho_approx", 0);
}

// Whether the processor draws: multisampling would halve its frame rate, and an accumulation buffer that
// nobody reads would have to be cleared in every frame.
bool RendersInSoftware() {
    const auto* const name = reinterpret_cast<const char*>(glGetString(GL_RENDERER));
    return name != nullptr &&
           (std::strstr(name, "llvmpipe") != nullptr || std::strstr(name, "softpipe") != nullptr);
}

// Empty for an error that GLU has no name for.
std::string NameOf(GLenum error) {
    const auto* const name = reinterpret_cast<const char*>(gluErrorString(error));
    return name != nullptr ? name : "";
}

std::string ReadConsoleLine() {
    std::string line;
    std::getline(std::cin, line);
    return line;
}

std::vector<unsigned int> LoadSky(TextureHandler& textures) {
    std::vector<unsigned int> faces;
    std::cout << "loading skybox-texture: ";
    for (const char* const path : skyFaces) {
        std::cout << " " << faces.size() + 1 << (faces.size() + 1 == skyFaces.size() ? " \n" : " ");
        faces.push_back(textures.LoadTexture(path, GL_LINEAR, GL_LINEAR_MIPMAP_LINEAR, GL_CLAMP_TO_EDGE,
                                             GL_CLAMP_TO_EDGE, GL_REPLACE));
    }
    std::cout << "textues loaded\n" << std::endl;
    return faces;
}

}  // namespace

Engine3D::Engine3D(int windowWidth, int windowHeight, int depth) {
    std::cout << "Press 'Y' to run Game in Fullscreen Mode" << std::endl;
    const std::string answer = ReadConsoleLine();
    fullscreen = answer == "Y" || answer == "y";
    width = fullscreen ? fullscreenWidth : windowWidth;
    height = fullscreen ? fullscreenHeight : windowHeight;
    SetVideoMode(width, height, depth);
}

void Engine3D::SetVideoMode(int windowWidth, int windowHeight, int depth) {
    OpenWindow(windowWidth, windowHeight, depth);
    InitGLState();
    Resize(windowWidth, windowHeight);
    SDL_WM_SetCaption("Tolvane", nullptr);
    // In place: whoever holds the address of a store keeps it.
    textures = TextureHandler();
    models = MD2_Store(&textures);
    shaders = ShaderStore();
}

void Engine3D::StartVideo() {
    if (SDL_Init(SDL_INIT_VIDEO) < 0)
        std::fprintf(stderr, "Video initialization failed: %s\n", SDL_GetError());

    const SDL_VideoInfo* const info = SDL_GetVideoInfo();
    if (info == nullptr)
        std::fprintf(stderr, "Video query failed: %s\n", SDL_GetError());

    videoFlags = SDL_OPENGL | SDL_HWPALETTE;
    if (info != nullptr && info->hw_available)
        videoFlags |= SDL_HWSURFACE;
    if (fullscreen)
        videoFlags |= SDL_FULLSCREEN;
    if (info != nullptr && info->blit_hw)
        videoFlags |= SDL_HWACCEL;
}

bool Engine3D::OpenSurface(int windowWidth, int windowHeight, int depth, bool accumulation,
                           bool multisampling) {
    // Without a video layer there is nobody to take the attributes.
    if (SDL_WasInit(SDL_INIT_VIDEO) != 0) {
        SetAttributes(colorAttributes);
        SetAttributes(accumulationAttributes, accumulation);
        SetAttributes(bufferAttributes);
        SetAttributes(multisamplingAttributes, multisampling);
    }
    screen = SDL_SetVideoMode(windowWidth, windowHeight, depth, videoFlags);
    if (screen == nullptr)
        std::fprintf(stderr, "Video mode set failed: %s\n", SDL_GetError());
    return screen != nullptr;
}

void Engine3D::OpenWindow(int windowWidth, int windowHeight, int depth) {
    AskForQuickFiltering();
    StartVideo();
    WindowWish granted{};
    for (const WindowWish& wish : windowWishes) {
        granted = wish;
        if (OpenSurface(windowWidth, windowHeight, depth, wish.accumulation, wish.multisampling) ||
            SDL_WasInit(SDL_INIT_VIDEO) == 0)
            break;
    }
    if (screen != nullptr && (granted.accumulation || granted.multisampling) && RendersInSoftware()) {
        // A window that is asked for anew keeps its samples, unless it was without GL in between.
        SDL_SetVideoMode(windowWidth, windowHeight, depth, videoFlags & ~SDL_OPENGL);
        if (!OpenSurface(windowWidth, windowHeight, depth, false, false))
            OpenSurface(windowWidth, windowHeight, depth, granted.accumulation, granted.multisampling);
    }
    // Bitmap text insists on it, and it needs a display: only now is there one for sure.
    if (screen != nullptr)
        InitGlut();
}

void Engine3D::InitGLState() {
    glShadeModel(GL_SMOOTH);
    glClearColor(0.0f, 0.0f, 0.0f, 0.0f);
    glClearDepth(1.0);

    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);
    glHint(GL_PERSPECTIVE_CORRECTION_HINT, GL_NICEST);

    glEnable(GL_CULL_FACE);
    glCullFace(GL_BACK);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);

    glEnable(GL_POINT_SMOOTH);
    glEnable(GL_LINE_SMOOTH);
    glHint(GL_LINE_SMOOTH_HINT, GL_NICEST);
    glHint(GL_POLYGON_SMOOTH_HINT, GL_NICEST);
    glEnable(GL_POLYGON_SMOOTH);

    glEnable(GL_TEXTURE_2D);
    glEnable(GL_LIGHTING);
    glFrontFace(GL_CW);

    glLightModeli(GL_LIGHT_MODEL_LOCAL_VIEWER, 1);
    glLightModelf(GL_LIGHT_MODEL_COLOR_CONTROL, GL_SEPARATE_SPECULAR_COLOR);

    const bool ready = glewInit() == GLEW_OK;
    std::cout << "****************\n"
              << (ready ? "GLEW_INIT: SUCCESS" : "GLEW_INIT: FAILED!!!!") << "\n****************\n"
              << std::endl;
}

void Engine3D::Resize(int windowWidth, int windowHeight) {
    if (windowHeight == 0)
        windowHeight = 1;
    const float aspect = static_cast<float>(windowWidth) / static_cast<float>(windowHeight);
    view.SetViewport(0, 0, windowWidth, windowHeight);
    view.SetPerspective(fieldOfView, aspect, nearPlane, farPlane);
}

void Engine3D::SetGame(Game3D* playedGame) {
    game = playedGame;
    renderer.SetGame(playedGame);
}

void Engine3D::SetSelectionGrid(BoardSelectionGrid* grid) {
    renderer.SetSelectionGrid(grid);
}

void Engine3D::MainLoop() {
    bool quit = false;
    input = InputHandler(&view, &renderer, game);
    renderer.SetView(&view);

    Skybox skybox(skySize, LoadSky(textures));
    renderer.SetSkybox(&skybox);

    view.MoveY(startHeight);
    view.Pitch(startPitch);

    const std::unique_ptr<MD2_Instance> sunInstance(models.CreateInstance(
        "models/sun/sun.md2", "models/sun/orange_star.tga", "models/sun/orange_star_normal.tga", sunScale));
    Sun sun(sunInstance.get(), nullptr);
    sun.Translate(0.0f, sunHeight, 0.0f);
    renderer.SetLight(&sun);

    while (!quit) {
        SDL_Event event;
        while (SDL_PollEvent(&event))
            quit |= Dispatch(event);
        renderer.RenderFrame();
        if (const GLenum error = glGetError(); error != GL_NO_ERROR)
            std::cerr << "GL Error: " << NameOf(error) << std::endl;
    }
    SDL_Quit();
}

bool Engine3D::Dispatch(const SDL_Event& event) {
    switch (event.type) {
        case SDL_KEYDOWN: {
            const int result = input.OnKeyDown(&event.key.keysym);
            if (result == InputHandler::keyTogglesFullscreen)
                std::cout << "toggle Fullscreen: " << SDL_WM_ToggleFullScreen(screen) << std::endl;
            return result == InputHandler::keyQuits;
        }
        case SDL_KEYUP: input.OnKeyUp(&event.key.keysym); return false;
        case SDL_MOUSEBUTTONUP: input.OnMouseUp(event.button.x, event.button.y); return false;
        case SDL_VIDEORESIZE: OnVideoResize(event.resize.w, event.resize.h); return false;
        case SDL_QUIT: return true;
        default: return false;
    }
}

void Engine3D::OnVideoResize(int newWidth, int newHeight) {
    screen = SDL_SetVideoMode(newWidth, newHeight, resizeDepth, videoFlags);
    std::cout << "test" << std::endl;
    if (screen == nullptr)
        std::fprintf(stderr, "Could not get a surface after resize: %s\n", SDL_GetError());
    Resize(newWidth, newHeight);
}

}  // namespace tolvane
