#include "frame/InputHandler.h"

#include <algorithm>
#include <array>
#include <iostream>

#include "assets/Gl.h"
#include "frame/Renderer3D.h"
#include "frame/View3D.h"
#include "game/Game3D.h"

namespace tolvane {

namespace {

// A key that moves the camera for as long as it is held.
struct CameraKey {
    SDLKey symbol;
    void (View3D::*setFlag)(int);
    int pressed;
};

constexpr std::array<CameraKey, 12> cameraKeys{{
    {.symbol = SDLK_UP, .setFlag = &View3D::SetMoveZMinus, .pressed = -1},
    {.symbol = SDLK_DOWN, .setFlag = &View3D::SetMoveZPlus, .pressed = 1},
    {.symbol = SDLK_LEFT, .setFlag = &View3D::SetMoveXMinus, .pressed = -1},
    {.symbol = SDLK_RIGHT, .setFlag = &View3D::SetMoveXPlus, .pressed = 1},
    {.symbol = SDLK_PAGEUP, .setFlag = &View3D::SetMoveYPlus, .pressed = 1},
    {.symbol = SDLK_PAGEDOWN, .setFlag = &View3D::SetMoveYMinus, .pressed = -1},
    {.symbol = SDLK_w, .setFlag = &View3D::SetPitchMinus, .pressed = -1},
    {.symbol = SDLK_s, .setFlag = &View3D::SetPitchPlus, .pressed = 1},
    {.symbol = SDLK_a, .setFlag = &View3D::SetYawMinus, .pressed = -1},
    {.symbol = SDLK_d, .setFlag = &View3D::SetYawPlus, .pressed = 1},
    {.symbol = SDLK_c, .setFlag = &View3D::SetZoomMinus, .pressed = -1},
    {.symbol = SDLK_x, .setFlag = &View3D::SetZoomPlus, .pressed = 1},
}};

// The keys that answer a promotion, in the order of the prompt, and the FigureType each one stands for.
struct PromotionKey {
    SDLKey symbol;
    int figureType;
};

constexpr std::array<PromotionKey, 4> promotionKeys{{
    {.symbol = SDLK_1, .figureType = 4},  // queen
    {.symbol = SDLK_2, .figureType = 1},  // rook
    {.symbol = SDLK_3, .figureType = 2},  // knight
    {.symbol = SDLK_4, .figureType = 3},  // bishop
}};

template <typename Table>
auto FindKey(const Table& table, SDLKey symbol) {
    return std::find_if(table.begin(), table.end(), [=](const auto& row) { return row.symbol == symbol; });
}

void PrintSwitch(const char* name, bool on) {
    std::cout << name << (on ? ": ON" : ": OFF") << std::endl;
}

}  // namespace

InputHandler::InputHandler(View3D* camera, Renderer3D* sceneRenderer, Game3D* playedGame)
    : view(camera), renderer(sceneRenderer), game(playedGame) {}

int InputHandler::OnKeyDown(const SDL_keysym* key) {
    if (const auto camera = FindKey(cameraKeys, key->sym); camera != cameraKeys.end()) {
        (view->*camera->setFlag)(camera->pressed);
        return keyDone;
    }
    if (const auto promotion = FindKey(promotionKeys, key->sym); promotion != promotionKeys.end()) {
        game->AdvancePawn(promotion->figureType);
        return keyDone;
    }
    switch (key->sym) {
        case SDLK_ESCAPE:
        case SDLK_q: return keyQuits;
        case SDLK_TAB: return keyTogglesFullscreen;
        case SDLK_SPACE: game->StartDemo(); break;
        case SDLK_l: ToggleLighting(); break;
        case SDLK_F2: renderer->SetShowFps(!renderer->GetShowFps()); break;
        case SDLK_F3: ToggleWireframe(); break;
        case SDLK_F6: NextDrawMode(); break;
        case SDLK_F7: ToggleDisplayLists(); break;
        case SDLK_F8: ToggleFrustumCulling(); break;
        case SDLK_F9: ToggleBlending(); break;
        default: break;
    }
    return keyDone;
}

int InputHandler::OnKeyUp(const SDL_keysym* key) {
    if (const auto camera = FindKey(cameraKeys, key->sym); camera != cameraKeys.end())
        (view->*camera->setFlag)(0);
    return 0;
}

int InputHandler::OnMouseUp(int x, int y) {
    if (!mouseEnabled)
        return 0;
    if (Element3D* const element = renderer->Pick(x, y))
        game->OnElementPicked(element);
    return 0;
}

void InputHandler::SetMouseEnabled(bool enabled) {
    mouseEnabled = enabled;
    SDL_ShowCursor(enabled ? 1 : 0);
}

void InputHandler::ToggleLighting() {
    lighting = !lighting;
    std::cout << (lighting ? "Enable Lighting" : "Disable Lighting") << std::endl;
    if (lighting)
        glEnable(GL_LIGHTING);
    else
        glDisable(GL_LIGHTING);
}

void InputHandler::ToggleWireframe() {
    wireframe = !wireframe;
    const GLenum mode = wireframe ? GL_LINE : GL_FILL;
    glPolygonMode(GL_FRONT, mode);
    glPolygonMode(GL_BACK, mode);
}

void InputHandler::NextDrawMode() {
    static constexpr std::array<const char*, 3> names{"DRAW_MODE: VBO", "DRAW_MODE: VERTEX_ARRAY",
                                                      "DRAW_MODE: TRIANGLES"};
    const int next = (renderer->GetDrawMode() + 1) % static_cast<int>(names.size());
    renderer->SetDrawMode(next);
    std::cout << names[static_cast<std::size_t>(next)] << std::endl;
}

void InputHandler::ToggleDisplayLists() {
    renderer->SetUseDisplayLists(!renderer->GetUseDisplayLists());
    PrintSwitch("DISPLAY_LIST", renderer->GetUseDisplayLists());
}

void InputHandler::ToggleFrustumCulling() {
    renderer->frustumCulling = !renderer->frustumCulling;
    PrintSwitch("FRUSTUM_CULLING", renderer->frustumCulling);
}

void InputHandler::ToggleBlending() {
    renderer->blending = !renderer->blending;
    PrintSwitch("BLENDING", renderer->blending);
}

}  // namespace tolvane
