#include "rules/ChessMoveRecord.h"

#include <gtest/gtest.h>

#include "rules/Knight.h"
#include "rules/Position.h"
#include "rules/Queen.h"

namespace tolvane {
namespace {

TEST(ChessMoveRecord, TellsWhoWentWhereAndWhatWasTaken) {
    Knight knight(2, 2, true, Player::White);
    Queen queen(2, 2, false, Player::Black);
    const ChessMoveRecord record(7, At("b1"), At("c3"), &knight, &queen, -1);
    EXPECT_EQ(record.GetNumber(), 7);
    EXPECT_EQ(record.GetUndoneNumber(), -1);
    EXPECT_EQ(NameOf(record.GetSource()->GetX(), record.GetSource()->GetY()), "b1");
    EXPECT_EQ(NameOf(record.GetTarget()->GetX(), record.GetTarget()->GetY()), "c3");
    EXPECT_EQ(record.GetFigure(), &knight);
    EXPECT_EQ(record.GetCaptured(), &queen);
    EXPECT_EQ(record.GetPlayer(), Player::White);
    EXPECT_EQ(record.GetType(), FigureType::Knight);
}

TEST(ChessMoveRecord, IsBlankAtFirst) {
    const ChessMoveRecord record;
    EXPECT_EQ(record.GetNumber(), -1);
    EXPECT_EQ(record.GetUndoneNumber(), -1);
    EXPECT_EQ(record.GetFigure(), nullptr);
    EXPECT_EQ(record.GetCaptured(), nullptr);
    EXPECT_EQ(NameOf(record.GetSource()->GetX(), record.GetSource()->GetY()), "a1");
    EXPECT_EQ(NameOf(record.GetTarget()->GetX(), record.GetTarget()->GetY()), "a1");
}

TEST(ChessMoveRecord, IsCopiedMemberByMember) {
    Knight knight(2, 2, true, Player::White);
    const ChessMoveRecord record(7, At("b1"), At("c3"), &knight, nullptr, 4);
    ChessMoveRecord copy;
    copy = record;
    EXPECT_EQ(copy.GetNumber(), 7);
    EXPECT_EQ(copy.GetUndoneNumber(), 4);
    EXPECT_EQ(copy.GetFigure(), &knight);
    EXPECT_NE(copy.GetSource(), record.GetSource());
    EXPECT_EQ(copy.GetSource()->Compare(*record.GetSource()), 0);
    EXPECT_EQ(copy.GetTarget()->Compare(*record.GetTarget()), 0);
}

TEST(ChessMoveRecord, IsReadAsAMoveRecord) {
    const ChessMoveRecord record(1, At("e2"), At("e4"), nullptr, nullptr, -1);
    const MoveRecord& entry = record;
    EXPECT_EQ(entry.GetSource()->GetX(), 4);
    EXPECT_EQ(entry.GetTarget()->GetY(), 3);
}

}  // namespace
}  // namespace tolvane
