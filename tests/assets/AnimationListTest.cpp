#include "assets/AnimationList.h"

#include <gmock/gmock.h>

namespace tolvane {
namespace {

AnimationList WalkAndStand() {
    return AnimationList(
        {{"run", MD2_AnimationMode::Loop, 2.0f}, {"stand", MD2_AnimationMode::Freeze, 0.5f}});
}

std::string NextName(AnimationList& list) {
    MD2_Animation animation;
    list.Next(animation);
    return animation.name;
}

TEST(AnimationList, RunsInACircle) {
    AnimationList list = WalkAndStand();
    EXPECT_EQ(list.GetCount(), 2);
    MD2_Animation animation;
    list.Next(animation);
    EXPECT_EQ(animation.name, "run");
    EXPECT_EQ(animation.mode, MD2_AnimationMode::Loop);
    EXPECT_EQ(animation.speed, 2.0f);
    EXPECT_EQ(NextName(list), "stand");
    EXPECT_EQ(list.GetNext(), 2);
    EXPECT_EQ(NextName(list), "run");
    EXPECT_EQ(list.GetNext(), 1);
}

TEST(AnimationList, RewindsToItsFirstEntry) {
    AnimationList list = WalkAndStand();
    NextName(list);
    list.Rewind();
    EXPECT_EQ(list.GetNext(), 0);
    EXPECT_EQ(NextName(list), "run");
}

TEST(AnimationList, GoesOnWhereItIsSet) {
    AnimationList list = WalkAndStand();
    list.SetNext(1);
    EXPECT_EQ(NextName(list), "stand");
    for (const int outside : {2, 100, -1, -100}) {
        list.SetNext(outside);
        EXPECT_EQ(NextName(list), "run") << outside;
    }
}

TEST(AnimationList, YieldsNothingWhenEmpty) {
    AnimationList list;
    MD2_Animation animation{"untouched"};
    list.Next(animation);
    EXPECT_EQ(animation.name, "untouched");
    EXPECT_EQ(list.GetNext(), 0);
    EXPECT_EQ(list.GetCount(), 0);
}

TEST(MD2_AnimationMode, HasFixedNumbers) {
    EXPECT_EQ(static_cast<int>(MD2_AnimationMode::Loop), 0);
    EXPECT_EQ(static_cast<int>(MD2_AnimationMode::Once), 1);
    EXPECT_EQ(static_cast<int>(MD2_AnimationMode::Sequence), 2);
    EXPECT_EQ(static_cast<int>(MD2_AnimationMode::Freeze), 3);
}

}  // namespace
}  // namespace tolvane
