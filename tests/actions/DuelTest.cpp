#include "actions/Duel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "actions/ActionFactory.h"
#include "actions/Scene.h"

namespace tolvane::test {

namespace {

using testing::ElementsAreArray;

constexpr Pace smooth{.frameTime = 1.0f / 60.0f};

float RestHeading(Player player) {
    return player == Player::White ? 0.0f : 180.0f;
}

Player Other(Player player) {
    return player == Player::White ? Player::Black : Player::White;
}

struct DuelCase {
    FigureType attacker;
    FigureType victim;
    int rounds;
    int secondHits;
};

const std::array duelCases{
    DuelCase{FigureType::Pawn, FigureType::Pawn, 2, 2},
    DuelCase{FigureType::Pawn, FigureType::Rook, 4, 4},
    DuelCase{FigureType::Pawn, FigureType::Knight, 3, 3},
    DuelCase{FigureType::Pawn, FigureType::Bishop, 3, 3},
    DuelCase{FigureType::Pawn, FigureType::Queen, 3, 3},
    DuelCase{FigureType::King, FigureType::Pawn, 1, 1},
    DuelCase{FigureType::King, FigureType::Rook, 3, 3},
    DuelCase{FigureType::King, FigureType::Knight, 2, 2},
    DuelCase{FigureType::King, FigureType::Bishop, 2, 2},
    DuelCase{FigureType::King, FigureType::Queen, 2, 2},
    DuelCase{FigureType::Rook, FigureType::Rook, 2, 0},
    DuelCase{FigureType::Rook, FigureType::Pawn, 1, 0},
    DuelCase{FigureType::Rook, FigureType::Knight, 1, 0},
    DuelCase{FigureType::Rook, FigureType::Bishop, 1, 0},
    DuelCase{FigureType::Rook, FigureType::Queen, 1, 0},
    DuelCase{FigureType::Bishop, FigureType::Pawn, 1, 1},
    DuelCase{FigureType::Bishop, FigureType::Rook, 4, 4},
    DuelCase{FigureType::Bishop, FigureType::Knight, 2, 2},
    DuelCase{FigureType::Bishop, FigureType::Bishop, 2, 2},
    DuelCase{FigureType::Bishop, FigureType::Queen, 2, 2},
};

struct Direction {
    int column;
    int row;
};

constexpr std::array diagonals{Direction{1, 1}, Direction{1, -1}, Direction{-1, -1}, Direction{-1, 1}};
constexpr std::array straights{Direction{0, 1}, Direction{1, 0}, Direction{0, -1}, Direction{-1, 0}};
constexpr std::array everyWay{Direction{0, 1},  Direction{1, 1},   Direction{1, 0},  Direction{1, -1},
                              Direction{0, -1}, Direction{-1, -1}, Direction{-1, 0}, Direction{-1, 1}};

// The ways in which a figure takes, as its side stands.
std::vector<Direction> WaysOf(FigureType type, Player player) {
    const int forward = player == Player::White ? 1 : -1;
    switch (type) {
        case FigureType::Pawn: return {{1, forward}, {-1, forward}};
        case FigureType::Rook: return {straights.begin(), straights.end()};
        case FigureType::Bishop: return {diagonals.begin(), diagonals.end()};
        default: return {everyWay.begin(), everyWay.end()};
    }
}

bool ShootsFromAfar(FigureType type) {
    return type == FigureType::Rook || type == FigureType::Bishop;
}

std::vector<std::string> ShotsOf(FigureType type) {
    switch (type) {
        case FigureType::Pawn: return {"pawnshot2", "pawnshot2"};
        case FigureType::Rook: return {"rookshot3"};
        case FigureType::Bishop: return std::vector<std::string>(6, "pawnshot");
        default: return {"kingAttack"};
    }
}

std::vector<std::string> DeathOf(FigureType type) {
    switch (type) {
        case FigureType::Pawn: return {"dying"};
        case FigureType::Rook: return {"rookdeath", "rookdeath1"};
        case FigureType::Bishop: return {"bishopDeath"};
        default: return {"explosionSmall"};
    }
}

std::vector<std::string> StepsOf(FigureType type) {
    switch (type) {
        case FigureType::Pawn: return {"pawnMove", "~pawnMove"};
        case FigureType::Rook: return {"rookMove", "~rookMove"};
        case FigureType::Bishop: return {"bishopMove", "~bishopMove"};
        default: return {"kingMove", "~kingMove"};
    }
}

std::vector<std::string> ExpectedCues(const DuelCase& duel, bool approaches) {
    std::vector<std::string> cues;
    const auto add = [&cues](const std::vector<std::string>& more) {
        cues.insert(cues.end(), more.begin(), more.end());
    };
    if (approaches)
        add(StepsOf(duel.attacker));
    for (int round = 0; round < duel.rounds; ++round)
        add(ShotsOf(duel.attacker));
    add(DeathOf(duel.victim));
    add(StepsOf(duel.attacker));
    return cues;
}

class DuelTest : public testing::Test {
protected:
    struct Pair {
        ChessFigure3D& attacker;
        ChessFigure3D& victim;
    };

    // Attacker on (column, row), victim some fields away; the script is set.
    Pair Meet(Player player, FigureType attacker, FigureType victim, int column, int row, Direction way,
              int distance) {
        ChessFigure3D& first = troupe.Place(player, attacker, column, row);
        ChessFigure3D& second =
            troupe.Place(Other(player), victim, column + distance * way.column, row + distance * way.row);
        first.SetAction(factory.CreateAttackAction(&first, &second, fieldWidth));
        return {first, second};
    }

    // Plays a duel and checks everything that it leaves behind.
    void PlayDuel(const DuelCase& duel, Player player, Direction way, int distance, const Pace& pace) {
        SCOPED_TRACE(testing::Message()
                     << static_cast<int>(duel.attacker) << " against " << static_cast<int>(duel.victim)
                     << ", side " << static_cast<int>(player) << ", " << distance << " fields by "
                     << way.column << ", " << way.row << ", " << pace);
        const auto [attacker, victim] = Meet(player, duel.attacker, duel.victim, 3, 4, way, distance);
        const Outcome outcome = Scene(troupe, attacker, &victim, pace).Play();
        EXPECT_EQ(outcome.endings, 1);
        EXPECT_THAT(outcome.cues, ElementsAreArray(ExpectedCues(duel, distance > 1)));
        EXPECT_EQ(outcome.secondHits, duel.secondHits);
        const int column = 3 + distance * way.column;
        const int row = 4 + distance * way.row;
        ExpectAtRest(attacker, column, row, RestHeading(player));
        ExpectGone(victim, column, row);
        EXPECT_EQ(troupe.ModelOf(attacker).GetAnimationName(), "stand");
    }

    Troupe troupe;
    ActionFactory factory;
};

}  // namespace

TEST_F(DuelTest, ABishopFightsAQueenFromAfar) {
    const auto [bishop, queen] = Meet(Player::White, FigureType::Bishop, FigureType::Queen, 2, 0, {1, 1}, 4);
    const Outcome outcome = Scene(troupe, bishop, &queen, smooth).Play();
    EXPECT_EQ(outcome.endings, 1);
    EXPECT_EQ(outcome.secondHits, 2);
    ExpectAtRest(bishop, 6, 4, 0.0f);
    ExpectGone(queen, 6, 4);
}

TEST_F(DuelTest, EveryPairEndsAtEveryPace) {
    std::size_t count = 0;
    for (const DuelCase& duel : duelCases)
        for (const Pace& pace : AllPaces()) {
            const Player player = count % 2 ? Player::Black : Player::White;
            const std::vector<Direction> ways = WaysOf(duel.attacker, player);
            const int distance = ShootsFromAfar(duel.attacker) && count % 3 != 0 ? 3 : 1;
            PlayDuel(duel, player, ways[count % ways.size()], distance, pace);
            ++count;
        }
}

TEST_F(DuelTest, EveryWayOfTakingEndsForBothSides) {
    for (const DuelCase& duel : {duelCases[0], duelCases[5], duelCases[11], duelCases[15]})
        for (const Player player : {Player::White, Player::Black})
            for (const Direction way : WaysOf(duel.attacker, player))
                PlayDuel(duel, player, way, ShootsFromAfar(duel.attacker) ? 2 : 1, smooth);
}

TEST_F(DuelTest, TheVictimEndsUpFacingItsAttacker) {
    struct FacingCase {
        Player player;
        Direction way;
        float attacker;
        float victim;
    };
    const std::array cases{FacingCase{Player::White, {1, 1}, -45.0f, 135.0f},
                           FacingCase{Player::White, {-1, -1}, 135.0f, 315.0f},
                           FacingCase{Player::Black, {1, 1}, 315.0f, 135.0f},
                           FacingCase{Player::Black, {-1, -1}, 135.0f, -45.0f},
                           FacingCase{Player::White, {0, -1}, 180.0f, 360.0f},
                           FacingCase{Player::Black, {0, 1}, 360.0f, 180.0f},
                           FacingCase{Player::White, {1, 0}, -90.0f, 90.0f}};
    for (const FacingCase& each : cases) {
        const auto [king, pawn] = Meet(each.player, FigureType::King, FigureType::Pawn, 3, 4, each.way, 1);
        Scene scene(troupe, king, &pawn, smooth);
        ASSERT_TRUE(scene.PlayUntil([&king = king] { return king.attackActive; }));
        EXPECT_EQ(king.GetRotationY(), each.attacker);
        EXPECT_EQ(pawn.GetRotationY(), each.victim);
        scene.Play();
    }
}

TEST_F(DuelTest, AnAttackerFromAfarWalksToTheFieldBeforeItsVictimWhoTurnsOnlyThen) {
    const auto [bishop, knight] =
        Meet(Player::White, FigureType::Bishop, FigureType::Knight, 1, 1, {1, 1}, 4);
    Scene scene(troupe, bishop, &knight, smooth);
    scene.watch = [&bishop = bishop, &knight = knight] {
        if (bishop.GetColumn() == 1) {
            EXPECT_EQ(knight.GetRotationY(), 180.0f);
        }
    };
    ASSERT_TRUE(scene.PlayUntil([&bishop = bishop] { return bishop.GetColumn() != 1; }));
    EXPECT_TRUE(Equal(*bishop.GetPosition(), FieldPlace(4, 4)));
    EXPECT_FALSE(bishop.attackActive);
    ASSERT_TRUE(scene.PlayUntil([&bishop = bishop] { return bishop.attackActive; }));
    EXPECT_EQ(knight.GetRotationY(), 135.0f);
}

TEST_F(DuelTest, ABishopBesideItsVictimDoesNotWalkUp) {
    const auto [bishop, pawn] = Meet(Player::White, FigureType::Bishop, FigureType::Pawn, 3, 4, {1, 1}, 1);
    Scene scene(troupe, bishop, &pawn, smooth);
    const MD2_Instance& model = troupe.ModelOf(bishop);
    ASSERT_TRUE(scene.PlayUntil([&bishop = bishop, &model] {
        EXPECT_NE(model.GetAnimationName(), "run");
        EXPECT_TRUE(Equal(*bishop.GetPosition(), FieldPlace(3, 4)));
        return bishop.attackActive;
    }));
    scene.Play();
    ExpectAtRest(bishop, 4, 5, 0.0f);
}

TEST_F(DuelTest, ARookThatAttacksStraightAheadTurnsNeitherItselfNorItsVictim) {
    for (const Player player : {Player::White, Player::Black}) {
        const int forward = player == Player::White ? 1 : -1;
        const auto [rook, queen] = Meet(player, FigureType::Rook, FigureType::Queen, 3, 4, {0, forward}, 3);
        Scene scene(troupe, rook, &queen, smooth);
        scene.watch = [&rook = rook, &queen = queen, player] {
            EXPECT_EQ(rook.GetRotationY(), RestHeading(player));
            EXPECT_EQ(queen.GetRotationY(), RestHeading(Other(player)));
        };
        EXPECT_EQ(scene.Play().endings, 1);
    }
}

TEST_F(DuelTest, ARooksFirstHitIsTheHeavyOneAndLaterOnesAreLight) {
    for (const FigureType victimType : {FigureType::Queen, FigureType::Rook}) {
        const auto [rook, victim] = Meet(Player::White, FigureType::Rook, victimType, 3, 4, {1, 0}, 1);
        Scene scene(troupe, rook, &victim, smooth);
        int heavyStarts = 0;
        int lightStarts = 0;
        bool heavy = false;
        bool light = false;
        scene.watch = [&, &hit = victim] {
            heavyStarts += hit.heavyDamageActive && !heavy;
            lightStarts += hit.damageActive && !light;
            heavy = hit.heavyDamageActive;
            light = hit.damageActive;
        };
        scene.Play();
        EXPECT_EQ(heavyStarts, 1);
        EXPECT_EQ(lightStarts, victimType == FigureType::Rook ? 1 : 0);
    }
}

TEST_F(DuelTest, TheSecondHitProlongsThePuffsFromAQuarterSecondOn) {
    const auto [bishop, pawn] = Meet(Player::White, FigureType::Bishop, FigureType::Pawn, 3, 4, {1, 1}, 1);
    Scene scene(troupe, bishop, &pawn, {.frameTime = 1.0f / 64.0f});
    ASSERT_TRUE(scene.PlayUntil([&pawn = pawn] { return pawn.damageActive; }));
    const float start = scene.Seconds();
    ASSERT_TRUE(scene.PlayUntil([&pawn = pawn] { return !pawn.damageActive; }));
    EXPECT_NEAR(scene.Seconds() - start, 0.70f, 0.04f);
}

TEST_F(DuelTest, AKingsSecondHitOnAPawnStartsItsPuffsAgain) {
    const auto [king, pawn] = Meet(Player::White, FigureType::King, FigureType::Pawn, 3, 4, {1, 1}, 1);
    Scene scene(troupe, king, &pawn, {.frameTime = 1.0f / 64.0f});
    ASSERT_TRUE(scene.PlayUntil([&pawn = pawn] { return pawn.damageActive; }));
    const float start = scene.Seconds();
    ASSERT_TRUE(scene.PlayUntil([&pawn = pawn] { return !pawn.damageActive; }));
    EXPECT_NEAR(scene.Seconds() - start, 0.45f, 0.04f);
    ASSERT_TRUE(scene.PlayUntil([&pawn = pawn] { return pawn.damageActive; }));
    EXPECT_NEAR(scene.Seconds() - start, 0.6f, 0.04f);
    ASSERT_TRUE(scene.PlayUntil([&pawn = pawn] { return !pawn.damageActive; }));
    EXPECT_NEAR(scene.Seconds() - start, 1.05f, 0.06f);
}

TEST(ShortDuel, AKingsRoundThatIsOverBeforeItsSecondHitEndsWithoutOne) {
    Troupe troupe(3);
    ChessFigure3D& king = troupe.Place(Player::White, FigureType::King, 3, 4);
    ChessFigure3D& pawn = troupe.Place(Player::Black, FigureType::Pawn, 4, 5);
    king.SetAction(ActionFactory().CreateAttackAction(&king, &pawn, fieldWidth));
    const Outcome outcome =
        Scene(troupe, king, &pawn, {.frameTime = 1.0f / 60.0f, .likeTheGame = false}).Play();
    EXPECT_EQ(outcome.endings, 1);
    EXPECT_EQ(outcome.secondHits, 0);
    ExpectAtRest(king, 4, 5, 0.0f);
    ExpectGone(pawn, 4, 5);
}

TEST_F(DuelTest, PlaysTheClipsOfAFight) {
    const auto [pawn, knight] = Meet(Player::White, FigureType::Pawn, FigureType::Knight, 3, 4, {1, 1}, 1);
    Scene scene(troupe, pawn, &knight, smooth);
    ASSERT_TRUE(scene.PlayUntil([&pawn = pawn] { return pawn.attackActive; }));
    EXPECT_EQ(troupe.ModelOf(pawn).GetAnimationName(), "attack");
    EXPECT_EQ(troupe.ModelOf(knight).GetAnimationName(), "damage");
    ASSERT_TRUE(scene.PlayUntil([&knight = knight] { return knight.GetShader() == nullptr; }));
    EXPECT_EQ(troupe.ModelOf(knight).GetAnimationName(), "death");
    const float fading = scene.Seconds();
    ASSERT_TRUE(scene.PlayUntil([&knight = knight] { return !knight.active; }));
    EXPECT_NEAR(scene.Seconds() - fading, 2.0f, 0.04f);
    EXPECT_EQ(troupe.ModelOf(pawn).GetAnimationName(), "run");
}

TEST_F(DuelTest, TheVictimFallsOnlyWhenAllFourHaveComeToTheirEnd) {
    // The clips take longer than shots and puffs: the round waits for them.
    const auto [rook, pawn] = Meet(Player::White, FigureType::Rook, FigureType::Pawn, 3, 4, {1, 0}, 1);
    Scene scene(troupe, rook, &pawn, smooth);
    ASSERT_TRUE(scene.PlayUntil([&rook = rook] { return rook.attackActive; }));
    const float start = scene.Seconds();
    ASSERT_TRUE(scene.PlayUntil([&rook = rook] { return !rook.attackActive; }));
    EXPECT_NEAR(scene.Seconds() - start, 0.25f, 0.04f);
    ASSERT_TRUE(scene.PlayUntil([&pawn = pawn] { return pawn.GetShader() == nullptr; }));
    EXPECT_GT(scene.Seconds() - start, 0.8f);
}

TEST(DuelValues, HoldTheSeventeenFightsByName) {
    struct Row {
        DuelKind kind;
        int rounds;
        float secondHit;  // 0 for none
        DuelReach reach;
    };
    using enum DuelKind;
    const std::array rows{Row{Pawn_VS_Pawn, 2, 0.25f, DuelReach::neighbours},
                          Row{Pawn_VS_Rook, 4, 0.25f, DuelReach::neighbours},
                          Row{Pawn_VS_Knight, 3, 0.25f, DuelReach::neighbours},
                          Row{Pawn_VS_Bishop, 3, 0.25f, DuelReach::neighbours},
                          Row{Pawn_VS_Queen, 3, 0.25f, DuelReach::neighbours},
                          Row{King_VS_Pawn, 1, 0.6f, DuelReach::neighbours},
                          Row{King_VS_Rook, 3, 0.25f, DuelReach::neighbours},
                          Row{King_VS_Knight, 2, 0.25f, DuelReach::neighbours},
                          Row{King_VS_Bishop, 2, 0.25f, DuelReach::neighbours},
                          Row{King_VS_Queen, 2, 0.25f, DuelReach::neighbours},
                          Row{Rook_VS_Rook, 2, 0.0f, DuelReach::fromAfar},
                          Row{Rook_VS_X, 1, 0.0f, DuelReach::fromAfar},
                          Row{Bishop_VS_Pawn, 1, 0.25f, DuelReach::fromAfar},
                          Row{Bishop_VS_Rook, 4, 0.25f, DuelReach::fromAfar},
                          Row{Bishop_VS_Knight, 2, 0.25f, DuelReach::fromAfar},
                          Row{Bishop_VS_Bishop, 2, 0.25f, DuelReach::fromAfar},
                          Row{Bishop_VS_Queen, 2, 0.25f, DuelReach::fromAfar}};
    static_assert(rows.size() == duelValues.size());
    for (const Row& row : rows) {
        const DuelValues& values = ValuesOf(row.kind);
        EXPECT_EQ(values.rounds, row.rounds);
        EXPECT_EQ(values.fight.secondHitDelay.value_or(0.0f), row.secondHit);
        EXPECT_EQ(values.reach, row.reach);
    }
}

}  // namespace tolvane::test
