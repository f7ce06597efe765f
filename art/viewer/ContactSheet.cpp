#include "viewer/ContactSheet.h"

#include <IL/il.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

#include "assets/Gl.h"
#include "scene/Light.h"

namespace tolvane::viewer {

namespace {

constexpr int tile = 256;
constexpr float framesASecond = 10.0f;

// Where a tile is looked at from: turned about the subject and tilted, degrees; the distance in multiples of
// the subject's size, so that it fills the tile.
struct Camera {
    float turn;
    float tilt;
    float distance;
};

constexpr std::array<Camera, 5> cameras{{
    {.turn = 180.0f, .tilt = 12.0f, .distance = 1.35f},  // front: figures look along -z
    {.turn = 90.0f, .tilt = 12.0f, .distance = 1.35f},   // right side
    {.turn = 0.0f, .tilt = 12.0f, .distance = 1.35f},    // back
    {.turn = 0.0f, .tilt = 40.0f, .distance = 1.35f},    // from the start, enlarged
    {.turn = 205.0f, .tilt = 40.0f, .distance = 1.35f},  // as the other side sees it
}};
constexpr Camera phaseCamera{.turn = 145.0f, .tilt = 20.0f, .distance = 1.45f};
constexpr int phases = 6;

// The starting camera's distance and scale: 768 pixels for 60 degrees.
constexpr float startDistance = 30.0f;
constexpr float startWindow = 768.0f;
constexpr float fieldOfView = 60.0f;
constexpr float tileFieldOfView = 40.0f;

void Look(const Camera& camera, const Subject& subject, float degrees, float distance) {
    glViewport(0, 0, tile, tile);
    glScissor(0, 0, tile, tile);
    glEnable(GL_SCISSOR_TEST);
    glClearColor(0.12f, 0.10f, 0.17f, 1.0f);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glDisable(GL_SCISSOR_TEST);

    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    gluPerspective(degrees, 1.0, 0.1, 400.0);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
    glTranslatef(0.0f, 0.0f, -distance);
    glRotatef(camera.tilt, 1.0f, 0.0f, 0.0f);
    glRotatef(-camera.turn, 0.0f, 1.0f, 0.0f);
    glTranslatef(0.0f, -subject.centre, 0.0f);
    Light().Apply(0.0f, 30.0f, 0.0f);
}

void LookClosely(const Camera& camera, const Subject& subject) {
    Look(camera, subject, tileFieldOfView, subject.size * camera.distance);
}

// The same size in pixels as in the game's first picture.
void LookFromStart(const Subject& subject) {
    const float half = std::tan(fieldOfView / 2.0f * 3.14159265f / 180.0f) * tile / startWindow;
    const float degrees = 2.0f * std::atan(half) * 180.0f / 3.14159265f;
    Look({.turn = 0.0f, .tilt = 40.0f, .distance = 0.0f}, subject, degrees, startDistance);
}

void StepTo(Subject& subject, const Clip& clip, int frame) {
    subject.play(clip.name);
    for (int i = 0; i < frame; ++i)
        subject.step(1.0f / framesASecond);
}

}  // namespace

ContactSheet::ContactSheet(int tileColumns, int tileRows, int pixels)
    : columns(tileColumns),
      rows(tileRows),
      tileSize(pixels),
      rgb(static_cast<std::size_t>(tileColumns * tileRows * pixels * pixels * 3)) {}

void ContactSheet::TakeTile(int column, int row) {
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glPixelStorei(GL_PACK_ROW_LENGTH, columns * tileSize);
    const int bottom = (rows - 1 - row) * tileSize;
    const std::size_t offset = static_cast<std::size_t>(bottom * columns + column) * tileSize * 3;
    glReadPixels(0, 0, tileSize, tileSize, GL_RGB, GL_UNSIGNED_BYTE, rgb.data() + offset);
    glPixelStorei(GL_PACK_ROW_LENGTH, 0);
}

void ContactSheet::Save(const std::string& path) const {
    ILuint image = 0;
    ilGenImages(1, &image);
    ilBindImage(image);
    std::vector<std::uint8_t> pixels = rgb;
    ilTexImage(static_cast<ILuint>(columns * tileSize), static_cast<ILuint>(rows * tileSize), 1, 3, IL_RGB,
               IL_UNSIGNED_BYTE, pixels.data());
    ilEnable(IL_FILE_OVERWRITE);
    const bool saved = ilSave(IL_PNG, path.c_str()) == IL_TRUE;
    ilDeleteImages(1, &image);
    if (!saved)
        throw std::runtime_error("Cannot write " + path);
}

ContactSheet DrawSheet(Subject& subject) {
    const int columns = static_cast<int>(cameras.size()) + 1 + phases;
    ContactSheet sheet(columns, static_cast<int>(subject.clips.size()), tile);
    int row = 0;
    for (const Clip& clip : subject.clips) {
        StepTo(subject, clip, clip.frames / 3);
        int column = 0;
        for (const Camera& camera : cameras) {
            LookClosely(camera, subject);
            subject.draw();
            sheet.TakeTile(column++, row);
        }
        LookFromStart(subject);
        subject.draw();
        sheet.TakeTile(column++, row);
        for (int phase = 0; phase < phases; ++phase) {
            StepTo(subject, clip, phase * std::max(clip.frames - 1, 0) / (phases - 1));
            LookClosely(phaseCamera, subject);
            subject.draw();
            sheet.TakeTile(column++, row);
        }
        ++row;
    }
    return sheet;
}

}  // namespace tolvane::viewer
