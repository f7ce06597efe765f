#include "figures/FigureValues.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "assets/Material.h"
#include "assets/Numbers.h"
#include "assets/ParticleEffect.h"
#include "assets/ParticleEffect3.h"
#include "figures/MixerLog.h"
#include "figures/Troupe.h"

namespace tolvane::test {

namespace {

// Every number that an emitter was given, on one line.
std::string Settings(const ParticleEmitter& emitter) {
    std::string line;
    const auto add = [&line](std::initializer_list<float> numbers) {
        for (const float number : numbers) {
            std::array<char, 32> text{};
            std::snprintf(text.data(), text.size(), "%.4g ", number);
            line += text.data();
        }
        line += "| ";
    };
    const auto addVertex = [&add](const Vertex& a, const Vertex& b) { add({a.x, a.y, a.z, b.x, b.y, b.z}); };
    addVertex(emitter.position, emitter.positionSpread);
    addVertex(emitter.direction, emitter.directionSpread);
    add({emitter.lifetimeMin, emitter.lifetimeMax, emitter.speedMin, emitter.speedMax});
    add({emitter.sizeStartMin, emitter.sizeStartMax, emitter.sizeEndMin, emitter.sizeEndMax});
    addVertex(emitter.colorStartMin, emitter.colorStartMax);
    addVertex(emitter.colorEndMin, emitter.colorEndMax);
    add({emitter.alphaStartMin, emitter.alphaStartMax, emitter.alphaEndMin, emitter.alphaEndMax});
    add({emitter.accelerationDirection.x, emitter.accelerationDirection.y, emitter.accelerationDirection.z,
         emitter.accelerationMin, emitter.accelerationMax});
    return line + std::to_string(emitter.emissionRate);
}

struct EmitterCase {
    FigureType type;
    std::string attack;
    std::string damage;
    std::string heavyDamage;
};

// position, spread | direction, spread | lifetime, speed | size | start colours | end colours | alpha |
// acceleration | rate
const std::array emitterCases{
    EmitterCase{FigureType::Pawn,
                "0 0 0 0.02 0.02 0.02 | 0 0 -1 0 0 -1 | 0.35 0.4 2 2.4 | 0.3 0.3 0.01 0.01 | "
                "0.8 0 0 0.8 0.1 0.1 | 0.2 0.2 0 0.8 0.8 0 | 1 1 0.1 0.1 | 0 0 -1 0 0.5 | 5",
                "0 1 -0.02 0.2 0.2 0.2 | 0 0 -1 2 2 2 | 0.35 0.4 1 1.3 | 0.3 0.35 0.01 0.05 | "
                "0.4 0.1 0.1 0.3 0.2 0.2 | 0.6 0.6 0.6 0.8 0.8 0.8 | 1 1 0.1 0.1 | 0 0 -1 0 0.5 | 30",
                "0 1 -0.02 0.5 0.2 0.5 | 0 0 -1 2 2 2 | 0.5 0.5 0.5 0.8 | 0.6 0.65 0.01 0.05 | "
                "0.4 0.1 0.1 0.3 0.2 0.2 | 0.6 0.6 0.6 0.8 0.8 0.8 | 1 1 0.1 0.1 | 0 0 -1 0 0.5 | 50"},
    EmitterCase{FigureType::Rook,
                "0 0 0 0.02 0.02 0.02 | 0 0 -1 0 0 -1 | 0.35 0.5 1.9 2.3 | 0.5 0.8 0.05 0.2 | "
                "0.8 0 0 0.85 0.1 0.1 | 0.2 0.2 0 0.85 0.8 0 | 1 1 0.1 0.1 | 0 0 -1 0 0.5 | 5",
                "0 1 -0.75 0.2 0.2 0.2 | 0 0 -1 3 3 1 | 0.35 0.4 1 1.3 | 0.3 0.35 0.01 0.05 | "
                "0.4 0.1 0.1 0.3 0.2 0.2 | 0.6 0.6 0.6 0.8 0.8 0.8 | 1 1 0.1 0.1 | 0 0 -1 0 0.5 | 30",
                "0 1 -0.75 0.5 0.2 0.5 | 0 0 -1 2 2 2 | 0.5 0.5 0.5 0.8 | 0.6 0.65 0.01 0.05 | "
                "0.4 0.1 0.1 0.3 0.2 0.2 | 0.6 0.6 0.6 0.8 0.8 0.8 | 1 1 0.1 0.1 | 0 0 -1 0 0.5 | 50"},
    EmitterCase{FigureType::Knight,
                "0 0 0 0.02 0.02 0.02 | 0 -1 0 0 -1 0 | 2 2 3 3.5 | 0.5 0.5 0.03 0.03 | "
                "0.9 0.9 0.9 1 1 1 | 0.7 0.7 0.9 0.8 0.8 1 | 1 1 0.1 0.1 | 0 0 -1 0 0.5 | 50",
                "0 1 -0.02 0.2 0.2 0.2 | 0 0 -1 2 2 2 | 0.35 0.4 1 1.3 | 0.3 0.35 0.01 0.05 | "
                "0.4 0.1 0.1 0.3 0.2 0.2 | 0.6 0.6 0.6 0.8 0.8 0.8 | 1 1 0.1 0.1 | 0 0 -1 0 0.5 | 30",
                "0 1 -0.02 0.5 0.2 0.5 | 0 0 -1 2 2 2 | 0.5 0.5 0.5 0.8 | 0.6 0.65 0.01 0.05 | "
                "0.4 0.1 0.1 0.3 0.2 0.2 | 0.6 0.6 0.6 0.8 0.8 0.8 | 1 1 0.1 0.1 | 0 0 -1 0 0.5 | 50"},
    EmitterCase{FigureType::Bishop,
                "0 0 0 0.02 0.02 0.02 | 0 0 -1 0 0 -1 | 0.3 0.45 2 2.4 | 0.05 0.1 0.01 0.01 | "
                "0.3 0 0 0.5 0.1 0.1 | 0.2 0.2 0 0.8 0.8 0 | 1 1 0.1 0.1 | 0 0 -1 0 0.5 | 5",
                "0 1.75 -0.1 0.2 0.2 0.2 | 0 0 -1 2 2 2 | 0.35 0.4 1 1.3 | 0.3 0.35 0.01 0.05 | "
                "0.4 0.1 0.1 0.3 0.2 0.2 | 0.6 0.6 0.6 0.8 0.8 0.8 | 1 1 0.1 0.1 | 0 0 -1 0 0.5 | 30",
                "0 1.75 -0.1 0.5 0.2 0.5 | 0 0 -1 2 2 2 | 0.5 0.5 0.5 0.8 | 0.6 0.65 0.01 0.05 | "
                "0.4 0.1 0.1 0.3 0.2 0.2 | 0.6 0.6 0.6 0.8 0.8 0.8 | 1 1 0.1 0.1 | 0 0 -1 0 0.5 | 50"},
    EmitterCase{FigureType::Queen,
                "0 0 0 0.02 0.02 0.02 | 0 0 -1 0 0 -1 | 0.35 0.4 2 2.4 | 0.3 0.3 0.01 0.01 | "
                "0.8 0 0 0.8 0.1 0.1 | 0.2 0.2 0 0.8 0.8 0 | 1 1 0.1 0.1 | 0 0 -1 0 0.5 | 5",
                "0 1.25 -0.02 0.2 0.2 0.2 | 0 0 -1 2 2 2 | 0.35 0.4 1 1.3 | 0.3 0.35 0.01 0.05 | "
                "0.4 0.1 0.1 0.3 0.2 0.2 | 0.6 0.6 0.6 0.8 0.8 0.8 | 1 1 0.1 0.1 | 0 0 -1 0 0.5 | 30",
                "0 1.25 -0.02 0.5 0.2 0.5 | 0 0 -1 2 2 2 | 0.5 0.5 0.5 0.8 | 0.6 0.65 0.01 0.05 | "
                "0.4 0.1 0.1 0.3 0.2 0.2 | 0.6 0.6 0.6 0.8 0.8 0.8 | 1 1 0.1 0.1 | 0 0 -1 0 0.5 | 50"},
};

struct SettingCase {
    FigureType type;
    float degreesASecond;
    float standSpeed;
    float ambient;
    float diffuse;
    float specular;
    float shininess;
    std::vector<std::string> run;
    std::vector<std::string> death;
};

const std::array settingCases{
    SettingCase{FigureType::Pawn,
                75.0f,
                1.0f,
                0.7f,
                0.9f,
                1.0f,
                10.0f,
                {"run 0 1", "stand 0 1"},
                {"death 1 1", "stand 0 1"}},
    SettingCase{FigureType::Rook,
                51.0f,
                0.3f,
                0.2f,
                0.8f,
                0.8f,
                20.0f,
                {"run 0 1", "stand 0 0.3"},
                {"death 1 1", "stand 0 0.3"}},
    SettingCase{FigureType::Bishop,
                84.0f,
                1.0f,
                0.7f,
                0.9f,
                1.0f,
                10.0f,
                {"run 0 1", "stand 0 1"},
                {"death 1 1", "stand 0 1"}},
    SettingCase{FigureType::Knight,
                30.0f,
                1.0f,
                0.7f,
                0.9f,
                1.0f,
                10.0f,
                {"run_start 2 5", "run 0 5", "run_end 2 5", "stand 0 1"},
                {"death 1 1", "stand 0 1"}},
    SettingCase{FigureType::King,
                27.0f,
                1.0f,
                0.7f,
                0.9f,
                1.0f,
                10.0f,
                {"run 0 1", "stand 0 1"},
                {"death 2 1", "deathII 2 1", "deathIII 1 1"}},
    SettingCase{FigureType::Queen,
                60.0f,
                1.0f,
                0.4f,
                0.5f,
                0.8f,
                20.0f,
                {"run_start 2 1", "run 0 1", "run_end 2 1", "stand 0 1"},
                {"death 1 1", "stand 0 1"}},
};

std::string Text(const MD2_Animation& clip) {
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%s %d %g", clip.name.c_str(), static_cast<int>(clip.mode),
                  clip.speed);
    return text.data();
}

std::vector<std::string> Texts(AnimationList list) {
    std::vector<std::string> texts;
    for (int i = 0; i < list.GetCount(); ++i) {
        MD2_Animation clip;
        list.Next(clip);
        texts.push_back(Text(clip));
    }
    return texts;
}

class FigureValuesTest : public testing::Test {
protected:
    Troupe troupe;
};

}  // namespace

TEST_F(FigureValuesTest, GivesEachFigureItsPaintSpeedAndClips) {
    for (const SettingCase& expected : settingCases) {
        SCOPED_TRACE(static_cast<int>(expected.type));
        ChessFigure3D& figure = troupe.Place(Player::White, expected.type, 0, 0);
        const Material& material = *figure.GetInstanceMaterial();
        using testing::ElementsAre;
        EXPECT_THAT(material.GetAmbient(),
                    ElementsAre(expected.ambient, expected.ambient, expected.ambient, 1.0f));
        EXPECT_THAT(material.GetDiffuse(),
                    ElementsAre(expected.diffuse, expected.diffuse, expected.diffuse, 1.0f));
        EXPECT_THAT(material.GetSpecular(),
                    ElementsAre(expected.specular, expected.specular, expected.specular, 1.0f));
        EXPECT_EQ(material.GetShininess(), expected.shininess);
        EXPECT_EQ(Text(figure.damageAnimation), "damage 1 1");
        EXPECT_EQ(Text(figure.attackAnimations[0]), "attack 1 1");
        EXPECT_EQ(Texts(figure.runList), expected.run);
        EXPECT_EQ(Texts(figure.deathList), expected.death);
        EXPECT_EQ(figure.standAnimation.speed, expected.standSpeed);
        EXPECT_EQ(troupe.ModelOf(figure).GetAnimationName(), "stand");
        EXPECT_EQ(troupe.ModelOf(figure).speed, expected.standSpeed);

        figure.SetTargetHeading(100.0f);
        figure.TurnToTargetHeading(1.0f);
        EXPECT_FLOAT_EQ(figure.GetRotationY(), expected.degreesASecond);
    }
}

TEST_F(FigureValuesTest, TunesTheEmittersOfTheFiveThatHaveAllThree) {
    for (const EmitterCase& expected : emitterCases) {
        SCOPED_TRACE(static_cast<int>(expected.type));
        const ChessFigure3D& figure = troupe.Place(Player::White, expected.type, 0, 0);
        EXPECT_EQ(Settings(*figure.attackEmitter), expected.attack);
        EXPECT_EQ(Settings(*figure.damageEmitter), expected.damage);
        EXPECT_EQ(Settings(*figure.heavyDamageEmitter), expected.heavyDamage);
    }
}

TEST_F(FigureValuesTest, GivesTheKingAnExplosionAndNothingElse) {
    const King3D& king = troupe.PlaceKing(Player::White, 4, 0);
    EXPECT_EQ(Settings(*king.damageEmitter),
              "0 1.7 0.6 0.2 0.2 0.2 | 0 1 0 2 2 2 | 2.5 2.7 1 1.5 | 1.5 2 0.3 0.3 | "
              "0.8 0 0 0.8 0.1 0.1 | 0.2 0.2 0 0.8 0.8 0 | 1 1 0.1 0.1 | 0 0 0 -0.5 -1 | 100");
    EXPECT_EQ(king.attackEmitter, nullptr);
    EXPECT_EQ(king.heavyDamageEmitter, nullptr);
}

TEST_F(FigureValuesTest, GivesTheQueenAJetThatIsTunedAndABeamAndGlowAsTheyCome) {
    const Queen3D& queen = troupe.PlaceQueen(Player::White, 3, 0);
    EXPECT_EQ(Settings(*queen.engineEmitter),
              "0 0.3 0.6 0.2 0.2 0.2 | 0 -1 0.5 1 1 1 | 0.35 0.4 1 1.3 | 0.3 0.35 0.01 0.05 | "
              "0.8 0.8 0.4 0.9 0.9 0.5 | 0.6 0.1 0.1 0.7 0.2 0.2 | 1 1 0.1 0.1 | 0 1 0 0 0.5 | 10");
    EXPECT_EQ(Settings(queen.beamEmitter), Settings(ParticleEffect6(&troupe.Textures())));
    EXPECT_EQ(Settings(queen.glowEmitter), Settings(ParticleEffect7(&troupe.Textures())));
}

TEST_F(FigureValuesTest, TurnsBlackToFaceWhite) {
    for (const SettingCase& each : settingCases) {
        EXPECT_EQ(troupe.Place(Player::White, each.type, 0, 0).GetRotationY(), 0.0f);
        EXPECT_EQ(troupe.Place(Player::Black, each.type, 0, 7).GetRotationY(), 180.0f);
    }
}

TEST_F(FigureValuesTest, ReadsEverySoundWhileFiguresAreMade) {
    for (const SettingCase& each : settingCases)
        troupe.Place(Player::White, each.type, 0, 0);
    EXPECT_EQ(TakeLoadCount(), 44);
    for (const SettingCase& each : settingCases)
        troupe.Place(Player::Black, each.type, 0, 7);
    EXPECT_EQ(TakeLoadCount(), 0);
}

TEST_F(FigureValuesTest, GivesEachFigureItsStepsItsEndAndItsVoices) {
    struct SoundCase {
        FigureType type;
        std::string move;
        int loops;
        std::vector<Cue> death;
        std::string selected;
        std::string ack;
    };
    const std::array cases{
        SoundCase{FigureType::Pawn,
                  "media/pawnMove.wav",
                  0,
                  {Played("media/dying.wav")},
                  "media/pawnSelected0.wav",
                  "media/pawnAck1.wav"},
        SoundCase{FigureType::Rook,
                  "media/rookMove.wav",
                  5,
                  {Played("media/rookdeath.wav"), Played("media/rookdeath1.wav")},
                  "media/rookSelected0.wav",
                  "media/rookAck1.wav"},
        SoundCase{FigureType::Bishop,
                  "media/bishopMove.wav",
                  5,
                  {Played("media/bishopDeath.wav")},
                  "media/bishopSelected0.wav",
                  "media/bishopAck0.wav"},
        SoundCase{FigureType::Knight,
                  "media/knightMoveShort.wav",
                  10,
                  {Played("media/explosionSmall.wav")},
                  "media/knightSelected0.wav",
                  "media/knightAck0.wav"},
        SoundCase{
            FigureType::King, "media/kingMove.wav", 5, {}, "media/kingSelected0.wav", "media/kingAck0.wav"},
        SoundCase{FigureType::Queen,
                  "media/queenMove.wav",
                  4,
                  {Played("media/explosionSmall.wav")},
                  "media/queenSelected0.wav",
                  "media/queenAck1.wav"},
    };
    using testing::ElementsAre;
    using testing::ElementsAreArray;
    for (const SoundCase& expected : cases) {
        SCOPED_TRACE(expected.move);
        ChessFigure3D& figure = troupe.Place(Player::White, expected.type, 0, 0);
        figure.StartMoveSound();
        figure.StopMoveSound();
        EXPECT_THAT(TakeCues(troupe.Sounds()),
                    ElementsAre(Played(expected.move, 128, expected.loops), Faded(expected.move, 50)));
        figure.PlayDeathSound();
        EXPECT_THAT(TakeCues(troupe.Sounds()), ElementsAreArray(expected.death));
        // The first number of the sequence takes the first voice, the second one the middle one of up to
        // three.
        RestartRandom();
        figure.PlaySelectedSound();
        figure.PlayAckSound();
        EXPECT_THAT(TakeCues(troupe.Sounds()), ElementsAre(Played(expected.selected), Played(expected.ack)));
    }
}

TEST_F(FigureValuesTest, LetsTheKingAloneExplode) {
    for (const SettingCase& each : settingCases)
        troupe.Place(Player::White, each.type, 0, 0).PlayExplosionSound();
    EXPECT_THAT(TakeCues(troupe.Sounds()), testing::ElementsAre(Played("media/kingExplode.wav")));
}

}  // namespace tolvane::test
