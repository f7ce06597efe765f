// Draws contact sheets of the models with the game's own drawing code.
// Usage: viewer FOLDER [MODEL ...], in data/, with a display.
#include <SDL.h>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <string>
#include <vector>

#include "assets/Gl.h"
#include "viewer/ContactSheet.h"
#include "viewer/Subjects.h"

namespace {

constexpr int windowWidth = 512;
constexpr int windowHeight = 512;

bool OpenWindow() {
    if (SDL_Init(SDL_INIT_VIDEO) < 0)
        return false;
    SDL_GL_SetAttribute(SDL_GL_DOUBLEBUFFER, 1);
    SDL_GL_SetAttribute(SDL_GL_DEPTH_SIZE, 24);
    if (SDL_SetVideoMode(windowWidth, windowHeight, 32, SDL_OPENGL) == nullptr || glewInit() != GLEW_OK)
        return false;
    glEnable(GL_DEPTH_TEST);
    glEnable(GL_CULL_FACE);
    glFrontFace(GL_CW);
    glEnable(GL_TEXTURE_2D);
    glEnable(GL_LIGHTING);
    glLightModeli(GL_LIGHT_MODEL_LOCAL_VIEWER, 1);
    glLightModelf(GL_LIGHT_MODEL_COLOR_CONTROL, GL_SEPARATE_SPECULAR_COLOR);
    return true;
}

// "pawn" stands for both its paints.
bool IsWanted(const std::string& name, const std::vector<std::string>& wanted) {
    return wanted.empty() || std::any_of(wanted.begin(), wanted.end(), [&](const std::string& prefix) {
               return name.compare(0, prefix.size(), prefix) == 0;
           });
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::cerr << "Usage: viewer FOLDER [MODEL ...]" << std::endl;
        return 2;
    }
    if (!OpenWindow()) {
        std::cerr << "No window: " << SDL_GetError() << std::endl;
        return 1;
    }
    const std::string folder = argv[1];
    const std::vector<std::string> wanted(argv + 2, argv + argc);
    const auto isWanted = [&](const std::string& name) { return IsWanted(name, wanted); };
    for (tolvane::viewer::Subject& subject : tolvane::viewer::MakeSubjects(isWanted)) {
        const std::string path = folder + "/" + subject.name + ".png";
        tolvane::viewer::DrawSheet(subject).Save(path);
        std::cerr << path << std::endl;
    }
    SDL_Quit();
    return 0;
}
