#include "assets/ParticleEmitter.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

#include "assets/Gl.h"
#include "assets/Numbers.h"
#include "assets/RandomFloat.h"
#include "support/GlWindow.h"

namespace tolvane {

static bool operator==(const Vertex& a, const Vertex& b) {
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

static void PrintTo(const Vertex& vertex, std::ostream* out) {
    *out << '(' << vertex.x << ", " << vertex.y << ", " << vertex.z << ')';
}

namespace {

constexpr Vertex eye{0.0f, 0.0f, 50.0f};

std::vector<float> Distances(const ParticleEmitter& emitter) {
    std::vector<float> distances;
    for (const Particle& particle : emitter.GetActive())
        distances.push_back(particle.distance);
    return distances;
}

std::vector<Vertex> Positions(const ParticleEmitter& emitter) {
    std::vector<Vertex> positions;
    for (const Particle& particle : emitter.GetActive())
        positions.push_back(particle.position);
    return positions;
}

std::vector<float> Ages(const ParticleEmitter& emitter) {
    std::vector<float> ages;
    for (const Particle& particle : emitter.GetActive())
        ages.push_back(particle.age);
    return ages;
}

// Ten particles that live for a second and spread from the origin.
class Emitter : public ::testing::Test {
protected:
    Emitter() {
        RestartRandom();
        emitter.Setup(10, 0);
        emitter.emissionRate = 3;
        emitter.directionSpread = {1.0f, 1.0f, 1.0f};
        emitter.speedMin = emitter.speedMax = 1.0f;
        emitter.useQuads = true;
    }

    std::size_t Flying() const { return emitter.GetActive().size(); }
    std::size_t Free() const { return emitter.GetPool().size(); }

    ParticleEmitter emitter;
};

TEST_F(Emitter, SendsItsParticlesOutAndGetsThemBack) {
    emitter.UpdateParticles(0.02f, &eye);
    EXPECT_EQ(Flying(), 6u);
    EXPECT_EQ(Free(), 4u);
    emitter.emissionRate = 0;
    emitter.UpdateParticles(0.9f, &eye);
    EXPECT_EQ(Flying(), 6u);
    emitter.UpdateParticles(0.2f, &eye);
    EXPECT_EQ(Flying(), 0u);
    EXPECT_EQ(Free(), 10u);
}

TEST(ParticleEmitter, StartsWithEverythingOffButLifetimeAndEndAlpha) {
    const ParticleEmitter emitter;
    EXPECT_EQ(emitter.lifetimeMin, 1.0f);
    EXPECT_EQ(emitter.lifetimeMax, 1.0f);
    EXPECT_EQ(emitter.alphaEndMin, 1.0f);
    EXPECT_EQ(emitter.alphaEndMax, 1.0f);
    EXPECT_EQ(emitter.alphaStartMin, 0.0f);
    EXPECT_EQ(emitter.alphaStartMax, 0.0f);
    EXPECT_EQ(emitter.emissionRate, 0);
    EXPECT_EQ(emitter.emissionVariance, 0.0f);
    EXPECT_EQ(emitter.textureId, 0u);
    EXPECT_EQ(emitter.billboardMode, 0);
    EXPECT_FALSE(emitter.respawn);
    EXPECT_FALSE(emitter.useQuads);
    EXPECT_FALSE(emitter.spawnAtPosition);
    EXPECT_TRUE(emitter.GetPool().empty());
    EXPECT_TRUE(emitter.GetActive().empty());
}

// How many

TEST_F(Emitter, SpawnsNothingInNoTimeAndMovesNothingButTheDistance) {
    emitter.UpdateParticles(0.02f, &eye);
    const Vertex place = emitter.GetActive()[0].position;
    const Vertex nearer = Add(place, {1.0f, 0.0f, 0.0f});
    emitter.UpdateParticles(0.0f, &nearer);
    EXPECT_EQ(Flying(), 6u);
    const auto& active = emitter.GetActive();
    const auto same =
        std::find_if(active.begin(), active.end(), [&](const Particle& p) { return p.position == place; });
    ASSERT_NE(same, active.end());
    EXPECT_FLOAT_EQ(same->distance, 1.0f);
}

TEST_F(Emitter, EmitsByRateTimeAndHundred) {
    struct Case {
        int rate;
        float dt;
        std::size_t count;
    };
    const Case cases[] = {{3, 0.02f, 6}, {1, 0.0099f, 0}, {1, 0.01f, 1},  {2, 0.0149f, 2},
                          {0, 1.0f, 0},  {-5, 0.5f, 0},   {50, 0.5f, 10}, {1000000, 1e6f, 10}};
    for (const Case& row : cases) {
        emitter.Restart();
        emitter.lifetimeMin = emitter.lifetimeMax = 1e9f;
        emitter.emissionRate = row.rate;
        emitter.UpdateParticles(row.dt, &eye);
        EXPECT_EQ(Flying(), row.count) << row.rate << " for " << row.dt;
        EXPECT_EQ(Flying() + Free(), 10u);
    }
}

TEST_F(Emitter, VariesItsEmission) {
    emitter.Setup(1000, 0);
    emitter.emissionVariance = 0.5f;
    for (int i = 0; i < 20; ++i) {
        emitter.Restart();
        const std::size_t before = Flying();
        RestartRandom();
        for (int skip = 0; skip < i; ++skip)
            NextRandom();
        emitter.UpdateParticles(1.0f, &eye);
        RestartRandom();
        for (int skip = 0; skip < i; ++skip)
            NextRandom();
        const float factor = 1.0f + (RandomUpTo(1.0f) - 0.5f) * 0.5f;
        EXPECT_EQ(Flying() - before, static_cast<std::size_t>(3 * 1.0f * 100.0f * factor));
    }
}

TEST_F(Emitter, WaitsForTheDeadWhenItsPoolIsEmpty) {
    for (int i = 0; i < 5; ++i)
        emitter.UpdateParticles(0.04f, &eye);
    EXPECT_EQ(Flying(), 10u);
    EXPECT_EQ(Free(), 0u);
    const std::vector<float> ages = Ages(emitter);
    EXPECT_GT(*std::min_element(ages.begin(), ages.end()), 0.07f);
    for (int i = 0; i < 40; ++i)
        emitter.UpdateParticles(0.04f, &eye);
    EXPECT_EQ(Flying() + Free(), 10u);
    EXPECT_GT(Flying(), 5u);
}

TEST_F(Emitter, StartsAnewWithNothingInTheAir) {
    emitter.UpdateParticles(0.02f, &eye);
    emitter.Restart();
    EXPECT_EQ(Flying(), 0u);
    EXPECT_EQ(Free(), 10u);
    emitter.UpdateParticles(0.01f, &eye);
    EXPECT_EQ(Flying(), 3u);
}

TEST_F(Emitter, SetupChangesNumberAndPicture) {
    emitter.UpdateParticles(0.02f, &eye);
    emitter.Setup(4, 99);
    EXPECT_EQ(Free(), 4u);
    EXPECT_EQ(Flying(), 0u);
    EXPECT_EQ(emitter.textureId, 99u);
    emitter.Setup(-1, 0);
    EXPECT_EQ(Free(), 0u);
}

TEST_F(Emitter, ReturnsTheDeadTheLastFirst) {
    emitter.lifetimeMin = 0.1f;
    emitter.lifetimeMax = 0.2f;
    emitter.UpdateParticles(0.04f, &eye);
    ASSERT_EQ(Flying(), 10u);
    emitter.emissionRate = 0;
    std::vector<Particle> before = emitter.GetActive();
    emitter.UpdateParticles(0.09f, &eye);
    std::vector<float> expected;
    std::vector<float> survivors;
    for (const Particle& particle : before)
        (particle.age + 0.09f > particle.lifetime ? expected : survivors).push_back(particle.lifetime);
    std::reverse(expected.begin(), expected.end());
    ASSERT_FALSE(expected.empty());
    ASSERT_FALSE(survivors.empty());
    std::vector<float> returned;
    for (const Particle& particle : emitter.GetPool()) {
        returned.push_back(particle.lifetime);
        EXPECT_FALSE(particle.alive);
        EXPECT_EQ(particle.age, 0.0f);
    }
    EXPECT_EQ(returned, expected);
    EXPECT_EQ(Flying(), survivors.size());
}

TEST_F(Emitter, LetsParticlesLiveAgainWhereTheyMay) {
    emitter.respawn = true;
    emitter.UpdateParticles(0.04f, &eye);
    emitter.UpdateParticles(1.5f, &eye);
    EXPECT_EQ(Flying(), 10u);
    for (const Particle& particle : emitter.GetActive()) {
        EXPECT_TRUE(particle.alive);
        EXPECT_LE(particle.age, 1.0f);
    }
}

TEST_F(Emitter, WithNoLifetimeSpawnsTheDead) {
    for (const bool respawn : {false, true}) {
        emitter.Restart();
        emitter.respawn = respawn;
        emitter.lifetimeMin = emitter.lifetimeMax = 0.0f;
        emitter.UpdateParticles(0.02f, &eye);
        EXPECT_EQ(Flying(), 6u);
        for (const Particle& particle : emitter.GetActive())
            EXPECT_FALSE(particle.alive);
        emitter.emissionRate = 0;
        emitter.UpdateParticles(0.02f, &eye);
        EXPECT_EQ(Flying(), 0u);
        EXPECT_EQ(Free(), 10u);
        emitter.emissionRate = 3;
    }
}

TEST_F(Emitter, LetsThoseFlyOnceThatDieWithinTheirFirstStep) {
    emitter.lifetimeMin = emitter.lifetimeMax = 1e-6f;
    emitter.UpdateParticles(0.04f, &eye);
    EXPECT_EQ(Flying(), 10u);
    EXPECT_EQ(Free(), 0u);
    emitter.UpdateParticles(0.04f, &eye);
    EXPECT_EQ(Flying() + Free(), 10u);
}

TEST_F(Emitter, GivesAWholeLifeToThoseWhoseLifeIsShorterThanTheFirstStep) {
    emitter.lifetimeMin = emitter.lifetimeMax = 0.001f;
    emitter.UpdateParticles(5.0f, &eye);
    EXPECT_EQ(Flying(), 10u);
    emitter.emissionRate = 0;
    emitter.UpdateParticles(0.0005f, &eye);
    EXPECT_EQ(Flying(), 10u);
    emitter.UpdateParticles(0.001f, &eye);
    EXPECT_EQ(Flying(), 0u);
}

// How they fly

TEST_F(Emitter, SpawnsByItsSettingsAndTheRandomSeries) {
    emitter.position = {1, 2, 3};
    emitter.positionSpread = {0.1f, 0.2f, 0.3f};
    emitter.direction = {4, 5, 6};
    emitter.directionSpread = {0.4f, 0.5f, 0.6f};
    emitter.speedMin = 0.5f;
    emitter.speedMax = 1.5f;
    emitter.spinMin = 1.0f;
    emitter.spinMax = 2.0f;
    emitter.spinAccelerationMin = 3.0f;
    emitter.spinAccelerationMax = 4.0f;
    emitter.accelerationDirection = {0, 1, 2};
    emitter.accelerationMin = -1.0f;
    emitter.accelerationMax = 1.0f;
    emitter.colorStartMin = {0.1f, 0.2f, 0.3f};
    emitter.colorStartMax = {0.4f, 0.6f, 0.8f};
    emitter.colorEndMin = {0.9f, 0.8f, 0.7f};
    emitter.colorEndMax = {0.5f, 0.4f, 0.3f};
    emitter.alphaStartMin = 0.5f;
    emitter.alphaStartMax = 1.0f;
    emitter.alphaEndMin = 0.1f;
    emitter.alphaEndMax = 0.2f;
    emitter.sizeStartMin = 1.0f;
    emitter.sizeStartMax = 2.0f;
    emitter.sizeEndMin = 3.0f;
    emitter.sizeEndMax = 4.0f;
    emitter.lifetimeMin = 2.0f;
    emitter.lifetimeMax = 3.0f;

    for (const bool atPosition : {false, true}) {
        emitter.spawnAtPosition = atPosition;
        RestartRandom();
        Particle particle;
        particle.Spawn(emitter);
        const int next = NextRandom();

        RestartRandom();
        const auto spread = [] { return RandomUpTo(2.0f) - 1.0f; };
        const float lifetime = RandomRange(2.0f, 3.0f);
        Vertex place = atPosition ? Vertex{1, 2, 3} : Vertex{};
        place.x += spread() * 0.1f;
        place.y += spread() * 0.2f;
        place.z += spread() * 0.3f;
        Vertex way{4, 5, 6};
        way.x += spread() * 0.4f;
        way.y += spread() * 0.5f;
        way.z += spread() * 0.6f;
        way = Scale(way, RandomUpTo(2.0f));
        const Vertex pull = Scale({0, 1, 2}, RandomRange(-1.0f, 1.0f));
        const Vertex color =
            Add({0.1f, 0.2f, 0.3f}, Scale({0.4f - 0.1f, 0.6f - 0.2f, 0.8f - 0.3f}, RandomUnit()));
        const Vertex end =
            Add({0.9f, 0.8f, 0.7f}, Scale({0.5f - 0.9f, 0.4f - 0.8f, 0.3f - 0.7f}, RandomUnit()));
        const float alpha = RandomRange(0.5f, 1.0f);
        const float alphaEnd = RandomRange(0.1f, 0.2f);
        const float size = RandomRange(1.0f, 2.0f);
        const float sizeEnd = RandomRange(3.0f, 4.0f);
        const float spin = RandomRange(1.0f, 2.0f);
        const float spinAcceleration = RandomRange(3.0f, 4.0f);

        EXPECT_TRUE(particle.alive);
        EXPECT_EQ(particle.emitter, &emitter);
        EXPECT_EQ(particle.lifetime, lifetime);
        EXPECT_EQ(particle.age, 0.0f);
        EXPECT_EQ(particle.position, place);
        EXPECT_EQ(particle.velocity, way);
        EXPECT_EQ(particle.acceleration, pull);
        EXPECT_EQ(particle.color, color);
        EXPECT_EQ(particle.colorDelta, Divide(Subtract(end, color), lifetime));
        EXPECT_EQ(particle.alpha, alpha);
        EXPECT_EQ(particle.alphaDelta, (alphaEnd - alpha) / lifetime);
        EXPECT_EQ(particle.size, size);
        EXPECT_EQ(particle.sizeDelta, (sizeEnd - size) / lifetime);
        EXPECT_EQ(particle.angle, 0.0f);
        EXPECT_EQ(particle.spin, spin);
        EXPECT_EQ(particle.spinAcceleration, spinAcceleration);
        EXPECT_EQ(next, NextRandom()) << "another number of random numbers was used up";
    }
}

TEST_F(Emitter, WithNoLifetimeUsesUpOneRandomNumber) {
    emitter.lifetimeMin = emitter.lifetimeMax = 0.0f;
    Particle particle;
    particle.age = 7.0f;
    particle.Spawn(emitter);
    EXPECT_EQ(NextRandom(), 18467);
    EXPECT_FALSE(particle.alive);
    EXPECT_EQ(particle.age, 7.0f);
}

TEST_F(Emitter, StepsVelocityBeforePositionAndSpinBeforeAngle) {
    Particle particle;
    particle.emitter = &emitter;
    particle.lifetime = 10.0f;
    particle.position = {1, 0, 0};
    particle.velocity = {0, 1, 0};
    particle.acceleration = {0, 2, 4};
    particle.spin = 1.0f;
    particle.spinAcceleration = 2.0f;
    particle.color = {1, 1, 1};
    particle.colorDelta = {-1, -0.5f, 0};
    particle.alpha = 1.0f;
    particle.alphaDelta = -0.5f;
    particle.size = 2.0f;
    particle.sizeDelta = 4.0f;
    particle.Update(0.5f, {1, 0, 0}, 0);
    EXPECT_EQ(particle.age, 0.5f);
    EXPECT_EQ(particle.size, 4.0f);
    EXPECT_EQ(particle.alpha, 0.75f);
    EXPECT_EQ(particle.color, (Vertex{0.5f, 0.75f, 1.0f}));
    EXPECT_EQ(particle.velocity, (Vertex{0, 2, 2}));
    EXPECT_EQ(particle.position, (Vertex{1, 1, 1}));
    EXPECT_EQ(particle.spin, 2.0f);
    EXPECT_EQ(particle.angle, 1.0f);
    EXPECT_EQ(particle.distance, std::sqrt(2.0f));
}

TEST_F(Emitter, LivesToTheEndOfItsLifetimeAndNotBeyond) {
    Particle particle;
    particle.emitter = &emitter;
    particle.alive = true;
    particle.lifetime = 1.0f;
    particle.Update(1.0f, eye, 0);
    EXPECT_TRUE(particle.alive);
    particle.Update(0.001f, eye, 0);
    EXPECT_FALSE(particle.alive);
    EXPECT_EQ(particle.age, 0.0f);
}

TEST_F(Emitter, SpreadsABurstOverTheStep) {
    emitter.UpdateParticles(0.1f, &eye);
    const std::vector<float> ages = Ages(emitter);
    EXPECT_LT(*std::min_element(ages.begin(), ages.end()), 0.04f);
    EXPECT_GT(*std::max_element(ages.begin(), ages.end()), 0.06f);
    EXPECT_LE(*std::max_element(ages.begin(), ages.end()), 0.1f);
}

TEST_F(Emitter, SortsFarToNearInEveryUpdateOnly) {
    for (int i = 0; i < 30; ++i) {
        emitter.UpdateParticles(0.03f, &eye);
        const std::vector<float> distances = Distances(emitter);
        EXPECT_TRUE(std::is_sorted(distances.rbegin(), distances.rend()));
    }
    const std::vector<Vertex> order = Positions(emitter);
    emitter.DrawParticles(true);  // by an eye that has moved meanwhile
    EXPECT_EQ(Positions(emitter), order);
    const Vertex behind{0, 0, -50};
    emitter.UpdateParticles(0.0f, &behind);
    EXPECT_NE(Positions(emitter), order);
    const std::vector<float> distances = Distances(emitter);
    EXPECT_TRUE(std::is_sorted(distances.rbegin(), distances.rend()));
}

TEST_F(Emitter, IsAValueWhoseCopyGoesOnByItself) {
    emitter.UpdateParticles(0.02f, &eye);
    ParticleEmitter copy = emitter;
    copy.emissionRate = 0;
    copy.UpdateParticles(2.0f, &eye);
    EXPECT_TRUE(copy.GetActive().empty());
    EXPECT_EQ(copy.GetPool().size(), 10u);
    EXPECT_EQ(Flying(), 6u);
    emitter.UpdateParticles(0.0f, &eye);
    EXPECT_EQ(Flying(), 6u);
    EXPECT_EQ(Free(), 4u);
}

// How they look

class DrawnEmitter : public Emitter {
protected:
    DrawnEmitter() {
        glPushAttrib(GL_ALL_ATTRIB_BITS);
        glDisable(GL_TEXTURE_2D);
        glDisable(GL_DEPTH_TEST);
        glDisable(GL_CULL_FACE);
        glViewport(0, 0, edge, edge);
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glOrtho(-8, 8, -8, 8, -8, 8);
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glClear(GL_COLOR_BUFFER_BIT);

        emitter = ParticleEmitter();
        emitter.Setup(1, 0);
        emitter.emissionRate = 100;
        emitter.lifetimeMin = emitter.lifetimeMax = 1000.0f;
        emitter.colorStartMin = emitter.colorStartMax = {0.5f, 0.25f, 0.0f};
        emitter.colorEndMin = emitter.colorEndMax = {0.5f, 0.25f, 0.0f};
        emitter.alphaStartMin = emitter.alphaStartMax = 1.0f;
        emitter.sizeStartMin = emitter.sizeStartMax = emitter.sizeEndMin = emitter.sizeEndMax = 4.0f;
        emitter.spawnAtPosition = true;
        emitter.useQuads = true;
    }
    ~DrawnEmitter() override {
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glPopAttrib();
    }

    test::Picture Draw(bool blending = true) {
        emitter.DrawParticles(blending);
        return test::ReadPicture(0, 0, edge, edge);
    }

    struct Box {
        int left, right, bottom, top;
        bool operator==(const Box&) const = default;
    };
    // The box of all pixels that are not black, in half units from the origin.
    static Box BoxOf(const test::Picture& picture) {
        Box box{edge, 0, edge, 0};
        for (int y = 0; y < edge; ++y) {
            for (int x = 0; x < edge; ++x) {
                if (picture.Red(x, y) == 0 && picture.Green(x, y) == 0)
                    continue;
                box = {std::min(box.left, x), std::max(box.right, x + 1), std::min(box.bottom, y),
                       std::max(box.top, y + 1)};
            }
        }
        const auto place = [](int pixel) { return (pixel - edge / 2) / (unit / 2); };
        return {place(box.left), place(box.right), place(box.bottom), place(box.top)};
    }

    static constexpr int edge = 256;
    static constexpr int unit = edge / 16;
};

TEST_F(DrawnEmitter, StandsHalfASizeAboveItsPosition) {
    emitter.position = {1, -1, 0};
    emitter.UpdateParticles(0.01f, &eye);
    const test::Picture picture = Draw();
    EXPECT_EQ(BoxOf(picture), (Box{-2, 6, 2, 10}));
    EXPECT_NEAR(picture.Red(edge / 2 + unit, edge / 2 + 3 * unit), 128, 1);
    EXPECT_NEAR(picture.Green(edge / 2 + unit, edge / 2 + 3 * unit), 64, 1);
}

TEST_F(DrawnEmitter, TurnsAboutThatCornerByItsAngle) {
    emitter.spinMin = emitter.spinMax = 1.0f;
    emitter.UpdateParticles(0.01f, &eye);
    emitter.emissionRate = 0;
    const float angle = emitter.GetActive()[0].angle;
    ASSERT_GT(angle, 0.0f);
    emitter.UpdateParticles(3.14159265f / 2.0f - angle, &eye);
    EXPECT_EQ(BoxOf(Draw()), (Box{-12, -4, -4, 4}));
}

TEST_F(DrawnEmitter, FacesTheCameraByItsMode) {
    emitter.position = {0, -2, 0};
    emitter.UpdateParticles(0.01f, &eye);
    struct Case {
        int mode;
        float pitch, yaw;
        Box box;
    };
    const Case cases[] = {
        {0, 0, 60, {-2, 2, 0, 8}},   // flat in its own frame: half as wide when turned by 60 degrees
        {1, 0, 60, {-4, 4, 0, 8}},   // as wide and as high as without a turn
        {2, 0, 60, {-4, 4, 0, 8}},   // turns about the vertical
        {1, 90, 0, {-4, 4, 4, 12}},  // seen from above it still faces the camera
    };
    for (const Case& row : cases) {
        emitter.billboardMode = row.mode;
        glLoadIdentity();
        glRotatef(row.pitch, 1, 0, 0);
        glRotatef(row.yaw, 0, 1, 0);
        glClear(GL_COLOR_BUFFER_BIT);
        EXPECT_EQ(BoxOf(Draw()), row.box) << "mode " << row.mode;
    }
}

TEST_F(DrawnEmitter, LooksTheSameWhereverItIsDrawnAgain) {
    emitter.Setup(6, 0);
    emitter.positionSpread = {2.0f, 2.0f, 2.0f};
    emitter.sizeStartMin = emitter.sizeStartMax = emitter.sizeEndMin = emitter.sizeEndMax = 0.5f;
    emitter.UpdateParticles(0.06f, &eye);
    ASSERT_EQ(Flying(), 6u);
    const auto quarter = [](bool right, bool top) {
        return test::ReadPicture(right ? edge / 2 : 0, top ? edge / 2 : 0, edge / 2, edge / 2);
    };
    const test::Picture nothing = quarter(false, false);
    for (const bool right : {false, true})
        for (const bool top : {false, true}) {
            glLoadIdentity();
            glTranslatef(right ? 4.0f : -4.0f, top ? 4.0f : -4.0f, 0.0f);
            emitter.DrawParticles(true);
            EXPECT_EQ(quarter(right, top).CountDifferences(quarter(false, false), 0), 0);
        }
    EXPECT_GT(quarter(false, false).CountDifferences(nothing, 0), 4 * unit * unit / 4);
}

TEST_F(DrawnEmitter, AddsLightWhenItBlends) {
    emitter.Setup(2, 0);
    emitter.UpdateParticles(0.02f, &eye);
    ASSERT_EQ(emitter.GetActive().size(), 2u);
    EXPECT_EQ(Draw(true).Red(edge / 2, edge / 2 + 4 * unit), 255);
    glClear(GL_COLOR_BUFFER_BIT);
    EXPECT_NEAR(Draw(false).Red(edge / 2, edge / 2 + 4 * unit), 128, 1);
}

TEST_F(DrawnEmitter, DrawsNothingBeforeItsFirstUpdate) {
    EXPECT_EQ(Draw().CountDifferences(test::ReadPicture(edge, edge, edge, edge), 0), 0);
    emitter.UpdateParticles(0.01f, &eye);
    emitter.Restart();
    EXPECT_EQ(Draw().Red(edge / 2, edge / 2 + 2 * unit), 0);
}

TEST_F(DrawnEmitter, DrawsPointsOfItsSizeTimesThatOfGl) {
    emitter.useQuads = false;
    emitter.UpdateParticles(0.01f, &eye);
    glDisable(GL_POINT_SMOOTH);
    glPointSize(8.0f);
    EXPECT_EQ(BoxOf(Draw()), (Box{-2, 2, -2, 2}));
    GLfloat size = 0.0f;
    glGetFloatv(GL_POINT_SIZE, &size);
    EXPECT_FLOAT_EQ(size, 32.0f);
}

TEST_F(DrawnEmitter, LeavesLightOnBlendingOffAndDepthWritable) {
    glEnable(GL_BLEND);
    glDisable(GL_LIGHTING);
    emitter.UpdateParticles(0.01f, &eye);
    emitter.textureId = 0;
    Draw(false);
    EXPECT_TRUE(glIsEnabled(GL_LIGHTING));
    EXPECT_FALSE(glIsEnabled(GL_BLEND));
    GLboolean depthMask = GL_FALSE;
    glGetBooleanv(GL_DEPTH_WRITEMASK, &depthMask);
    EXPECT_TRUE(depthMask);
}

TEST_F(DrawnEmitter, LeavesATextureCoordinateForTheNextParticle) {
    emitter.UpdateParticles(0.01f, &eye);
    glTexCoord2f(0.5f, 0.5f);
    Draw();
    std::array<float, 4> coordinate{};
    glGetFloatv(GL_CURRENT_TEXTURE_COORDS, coordinate.data());
    EXPECT_THAT(coordinate, ::testing::ElementsAre(0, 0, 0, 1));
}

}  // namespace
}  // namespace tolvane
