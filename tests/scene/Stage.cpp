#include "scene/Stage.h"

#include <cstdint>

#include "assets/Gl.h"

namespace tolvane::test {

namespace {

constexpr double depthRange = 200.0;

void LookFlat(float reach) {
    glViewport(0, 0, GlWindow::height, GlWindow::height);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(-reach, reach, -reach, reach, 0.0, depthRange);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
}

int DepthOfStack(GLenum name) {
    int depth = 0;
    glGetIntegerv(name, &depth);
    return depth;
}

}  // namespace

void Stage::SetUp() {
    while (glGetError() != GL_NO_ERROR) {
    }
    glPushAttrib(GL_ALL_ATTRIB_BITS);
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_LEQUAL);
    glEnable(GL_CULL_FACE);
    glCullFace(GL_BACK);
    glFrontFace(GL_CW);
    glEnable(GL_TEXTURE_2D);
    glEnable(GL_LIGHTING);
    glBindTexture(GL_TEXTURE_2D, 0);
    Clear();
}

void Stage::TearDown() {
    glPopAttrib();
    EXPECT_EQ(DepthOfStack(GL_MODELVIEW_STACK_DEPTH), 1);
    EXPECT_EQ(DepthOfStack(GL_PROJECTION_STACK_DEPTH), 1);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

void Stage::Clear(float red, float green, float blue) {
    glClearColor(red, green, blue, 0.0f);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

void Stage::LookDown(float reach) {
    LookFlat(reach);
    gluLookAt(0.0, depthRange / 2.0, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0, -1.0);
}

void Stage::LookAhead(float reach) {
    LookFlat(reach);
    gluLookAt(0.0, 0.0, depthRange / 2.0, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0);
}

void Stage::LookAlong(const Vertex& direction, const Vertex& up) {
    glViewport(0, 0, GlWindow::width, GlWindow::height);
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    gluPerspective(60.0, static_cast<double>(GlWindow::width) / GlWindow::height, 0.1, 400.0);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    gluLookAt(0.0, 0.0, 0.0, direction.x, direction.y, direction.z, up.x, up.y, up.z);
}

Stage::Pixel Stage::PixelOf(const Vertex& point) {
    double modelview[16];
    double projection[16];
    int viewport[4];
    glGetDoublev(GL_MODELVIEW_MATRIX, modelview);
    glGetDoublev(GL_PROJECTION_MATRIX, projection);
    glGetIntegerv(GL_VIEWPORT, viewport);
    double x = 0.0;
    double y = 0.0;
    double depth = 0.0;
    gluProject(point.x, point.y, point.z, modelview, projection, viewport, &x, &y, &depth);
    return {static_cast<int>(x), static_cast<int>(y)};
}

Rgb Stage::ColorAt(const Vertex& point) {
    const Pixel pixel = PixelOf(point);
    const Picture picture = ReadPicture(pixel.x, pixel.y, 1, 1);
    return {picture.Red(0, 0), picture.Green(0, 0), picture.Blue(0, 0)};
}

std::vector<Stage::Hit> Stage::Pick(Pixel pixel, const std::function<void()>& draw) {
    std::array<unsigned int, 1024> buffer{};
    glSelectBuffer(static_cast<int>(buffer.size()), buffer.data());
    glRenderMode(GL_SELECT);
    glInitNames();
    glPushName(baseName);

    int viewport[4];
    double projection[16];
    glGetIntegerv(GL_VIEWPORT, viewport);
    glGetDoublev(GL_PROJECTION_MATRIX, projection);
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    glLoadIdentity();
    gluPickMatrix(pixel.x, pixel.y, 5.0, 5.0, viewport);
    glMultMatrixd(projection);
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    draw();
    glPopMatrix();
    glMatrixMode(GL_PROJECTION);
    glPopMatrix();
    glMatrixMode(GL_MODELVIEW);
    glFlush();

    const int count = glRenderMode(GL_RENDER);
    std::vector<Hit> hits;
    const unsigned int* record = buffer.data();
    for (int i = 0; i < count; ++i) {
        const unsigned int names = record[0];
        hits.push_back(
            {{record + 3, record + 3 + names}, record[1] / 4294967295.0, record[2] / 4294967295.0});
        record += 3 + names;
    }
    return hits;
}

unsigned int Stage::MakeTexture(int width, const std::vector<Rgb>& colors) {
    std::vector<std::uint8_t> bytes;
    for (const Rgb& color : colors)
        for (const int part : color)
            bytes.push_back(static_cast<std::uint8_t>(part));
    unsigned int texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, width, width, 0, GL_RGB, GL_UNSIGNED_BYTE, bytes.data());
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    glBindTexture(GL_TEXTURE_2D, 0);
    return texture;
}

}  // namespace tolvane::test
