#include "actions/Scene.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>

#include "assets/Material.h"

namespace tolvane::test {

namespace {

constexpr float longestScene = 300.0f;
constexpr float aftermath = 2.0f;
constexpr Vertex eye{0.0f, 20.0f, 30.0f};

}  // namespace

std::ostream& operator<<(std::ostream& out, const Pace& pace) {
    return out << pace.frameTime << " s a frame, " << pace.emptyFrames << " empty frames between, models in "
               << (pace.likeTheGame ? "one frame of five" : "every frame");
}

const std::vector<Pace>& AllPaces() {
    static const std::vector<Pace> paces{{.frameTime = 1.0f / 120.0f},
                                         {.frameTime = 1.0f / 60.0f},
                                         {.frameTime = 1.0f / 30.0f},
                                         {.frameTime = 1.0f / 20.0f},
                                         {.frameTime = 0.5f},
                                         {.frameTime = 1.0f / 60.0f, .emptyFrames = 1},
                                         {.frameTime = 0.5f, .emptyFrames = 2},
                                         {.frameTime = 1.0f / 60.0f, .likeTheGame = false},
                                         {.frameTime = 0.5f, .likeTheGame = false}};
    return paces;
}

Scene::Scene(Troupe& withTroupe, ChessFigure3D& holder, ChessFigure3D* other, const Pace& atPace)
    : troupe(withTroupe), figure(holder), victim(other), pace(atPace) {
    TakeCues(troupe.Sounds());
}

Outcome Scene::Play() {
    Outcome outcome;
    while (!outcome.over && seconds < longestScene)
        outcome.over = PlayFrame();
    outcome.endings = outcome.over;
    outcome.seconds = seconds;
    while (seconds < outcome.seconds + aftermath)
        outcome.endings += PlayFrame();
    outcome.secondHits = secondHits;
    outcome.cues = TakeCueNames(troupe);
    return outcome;
}

bool Scene::PlayUntil(const std::function<bool()>& condition) {
    while (!condition())
        if (PlayFrame() || seconds > longestScene)
            return false;
    return true;
}

bool Scene::PlayFrame() {
    bool over = false;
    for (int i = 0; i < pace.emptyFrames && !over; ++i)
        over = Frame(0.0f);
    seconds += pace.frameTime;
    return Frame(pace.frameTime) || over;
}

bool Scene::Frame(float dt) {
    const bool over = figure.active && figure.IsFinished() && figure.UpdateEffects(dt, &eye);
    if (dt > 0.0f)
        CountSecondHits();
    AnimateModels(dt);
    if (watch)
        watch();
    return over;
}

void Scene::AnimateModels(float dt) {
    // The game clears what has gathered on the frame after a step, that frame's own time included.
    const int turn = frameCount++ % 5;
    modelTime = turn == 1 && pace.likeTheGame ? 0.0f : modelTime + dt;
    if (turn != 0 && pace.likeTheGame)
        return;
    for (ChessFigure3D* each : {&figure, victim})
        if (each && each->active)
            each->Update(renderVertexArray, modelTime);
    if (!pace.likeTheGame)
        modelTime = 0.0f;
}

void Scene::CountSecondHits() {
    // A hit begins with its time at 0; the first one of a round begins with the first shot.
    secondHits += victim && victim->damageActive && victim->effectTimer == 0.0f && !figure.firstShotPending;
}

void ExpectAtRest(ChessFigure3D& figure, int column, int row, float heading) {
    EXPECT_EQ(static_cast<int>(figure.GetColumn()), column);
    EXPECT_EQ(static_cast<int>(figure.GetRow()), row);
    EXPECT_TRUE(Equal(*figure.GetPosition(), FieldPlace(column, row)))
        << figure.GetPosition()->x << ", " << figure.GetPosition()->y << ", " << figure.GetPosition()->z;
    EXPECT_EQ(figure.GetRotationY(), heading);
    EXPECT_TRUE(figure.active);
    EXPECT_FALSE(figure.IsFinished());
    EXPECT_FALSE(figure.UpdateEffects(0.1f, &eye));
    EXPECT_FALSE(figure.attackActive);
    EXPECT_FALSE(figure.damageActive);
    EXPECT_FALSE(figure.heavyDamageActive);
    EXPECT_FALSE(figure.firstShotPending);
    EXPECT_FALSE(figure.secondShotPending);
}

void ExpectGone(ChessFigure3D& figure, int column, int row) {
    EXPECT_EQ(static_cast<int>(figure.GetColumn()), column);
    EXPECT_EQ(static_cast<int>(figure.GetRow()), row);
    EXPECT_FALSE(figure.active);
    EXPECT_FALSE(figure.IsFinished());
    EXPECT_FALSE(figure.damageActive);
    EXPECT_FALSE(figure.heavyDamageActive);
    EXPECT_EQ(figure.GetShader(), nullptr);
    EXPECT_EQ(figure.GetInstanceMaterial()->GetColor()[3], 0.0f);
}

std::vector<std::string> TakeCueNames(Troupe& troupe) {
    std::vector<std::string> names;
    for (const Cue& cue : TakeCues(troupe.Sounds())) {
        const std::string name = std::filesystem::path(cue.path).stem().string();
        names.push_back(cue.kind == Cue::Kind::play ? name : "~" + name);
    }
    return names;
}

}  // namespace tolvane::test
