#include "support/GlWindow.h"

#include <SDL.h>

#include <cstdlib>

#include "assets/Gl.h"
#include "scene/Glut.h"

namespace tolvane::test {

void GlWindow::SetUp() {
    ASSERT_EQ(SDL_Init(SDL_INIT_VIDEO), 0) << SDL_GetError();
    SDL_GL_SetAttribute(SDL_GL_DOUBLEBUFFER, 1);
    SDL_GL_SetAttribute(SDL_GL_DEPTH_SIZE, 16);
    SDL_GL_SetAttribute(SDL_GL_STENCIL_SIZE, 8);
    ASSERT_NE(SDL_SetVideoMode(width, height, 32, SDL_OPENGL), nullptr) << SDL_GetError();
    ASSERT_EQ(glewInit(), static_cast<GLenum>(GLEW_OK));
}

void GlWindow::TearDown() {
    SDL_Quit();
}

int Picture::At(int x, int y, int channel) const {
    return rgb.at(static_cast<std::size_t>((y * width + x) * 3 + channel));
}

int Picture::CountDifferences(const Picture& other, int tolerance) const {
    int count = 0;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            count += std::abs(Red(x, y) - other.Red(x, y)) > tolerance ||
                     std::abs(Green(x, y) - other.Green(x, y)) > tolerance ||
                     std::abs(Blue(x, y) - other.Blue(x, y)) > tolerance;
    return count;
}

Picture ReadPicture(int x, int y, int width, int height) {
    Picture picture{width, height, std::vector<std::uint8_t>(static_cast<std::size_t>(width * height * 3))};
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glReadPixels(x, y, width, height, GL_RGB, GL_UNSIGNED_BYTE, picture.rgb.data());
    return picture;
}

void UseBitmapFonts() {
    if (glutGet(GLUT_INIT_STATE) != 0)
        return;
    char name[] = "test";
    char* arguments[] = {name, nullptr};
    int count = 1;
    glutInit(&count, arguments);
}

}  // namespace tolvane::test

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    ::testing::AddGlobalTestEnvironment(new tolvane::test::GlWindow);
    return RUN_ALL_TESTS();
}
