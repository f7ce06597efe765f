#include "assets/MD2_Instance.h"

#include <gmock/gmock.h>

#include <cmath>

#include "assets/Gl.h"
#include "assets/LoadedModel.h"
#include "assets/MD2_VertexNormals.h"
#include "support/GlWindow.h"
#include "support/Md2File.h"

namespace tolvane {
namespace {

using test::LoadModel;
using test::MakeInstance;
using test::SquareModel;

constexpr float oneFrame = 0.1f;  // of a clip at speed 1
constexpr int bufferMode = 0;
constexpr int arrayMode = 1;
constexpr int immediateMode = 2;

// "stand" has the frames 0 to 2, "run" 3 and 4, "die" only 5, and "end" only 6, the last of the model.
// Frame i stands i units higher than frame 0.
class Instance : public ::testing::Test {
protected:
    // Height of the square's lower left corner above that of frame 0, as the arrays have it.
    float Height() const { return instance->GetVertexArray()[1] + 5.0f; }

    void Play(const std::string& name, MD2_AnimationMode mode, float speed = 1.0f) {
        instance->SetAnimation({name, mode, speed});
    }

    // Steps a whole frame and a bit.
    bool Step() { return instance->Animate(arrayMode, oneFrame * 1.01f); }

    std::unique_ptr<MD2_Model> model =
        LoadModel(SquareModel({"stand0", "stand1", "stand2", "run0", "run1", "die0", "end0"}));
    std::unique_ptr<MD2_Instance> instance = MakeInstance(*model);
};

TEST_F(Instance, BlendsBetweenTheFramesOfAClip) {
    Play("stand", MD2_AnimationMode::Loop);
    EXPECT_FALSE(instance->Animate(arrayMode, oneFrame / 4));
    EXPECT_FLOAT_EQ(Height(), 0.25f);
    EXPECT_FALSE(instance->Animate(arrayMode, oneFrame / 4));
    EXPECT_FLOAT_EQ(Height(), 0.5f);
    EXPECT_FLOAT_EQ(instance->GetInterpolation(), 0.5f);
}

TEST_F(Instance, ShowsFrameZeroFrozenAtFirst) {
    EXPECT_EQ(instance->GetMode(), MD2_AnimationMode::Freeze);
    EXPECT_EQ(instance->GetAnimationName(), "");
    EXPECT_EQ(instance->GetAnimationList(), nullptr);
    EXPECT_FALSE(instance->IsAnimationFinished());
    const std::vector<float> mesh = instance->GetVertexArray();
    EXPECT_THAT(mesh, ::testing::ElementsAre(-5, -5, 0, -5, 5, 0, 5, 5, 0, -5, -5, 0, 5, 5, 0, 5, -5, 0));
    for (const int renderMode : {bufferMode, arrayMode, immediateMode})
        EXPECT_TRUE(instance->Animate(renderMode, 1.0f));
    EXPECT_EQ(instance->GetVertexArray(), mesh);
    EXPECT_EQ(test::ReadVertexBuffer(*instance).vertices, mesh);
    EXPECT_EQ(instance->GetInterpolation(), 0.0f);
}

TEST_F(Instance, TakesTheNormalsOfTheTable) {
    for (std::size_t i = 0; i < 18; i += 3) {
        EXPECT_EQ(instance->GetNormalArray()[i], 0.0f);
        EXPECT_EQ(instance->GetNormalArray()[i + 1], 0.0f);
        EXPECT_EQ(instance->GetNormalArray()[i + 2], 1.0f);
    }
    EXPECT_EQ(test::ReadVertexBuffer(*instance).normals, instance->GetNormalArray());
}

TEST_F(Instance, BoxIsThatOfFrameZeroScaled) {
    test::Md2File file = SquareModel({"frame0", "frame1"});
    file.frames[0].vertices[2] = {30, 10, 8, 0};
    file.frames[1].vertices[2] = {255, 255, 255, 0};
    const auto tall = LoadModel(file);
    const auto scaled = MakeInstance(*tall, 0.5f);
    EXPECT_EQ(scaled->minX, -2.5f);
    EXPECT_EQ(scaled->maxX, 12.5f);
    EXPECT_EQ(scaled->minY, -2.5f);
    EXPECT_EQ(scaled->maxY, 2.5f);
    EXPECT_EQ(scaled->minZ, 0.0f);
    EXPECT_EQ(scaled->maxZ, 4.0f);
    EXPECT_EQ(scaled->boundCentre.x, 5.0f);
    EXPECT_EQ(scaled->boundCentre.y, 0.0f);
    EXPECT_EQ(scaled->boundCentre.z, 2.0f);
    EXPECT_EQ(scaled->boundRadius, 7.5f);
}

TEST_F(Instance, BoxLooksOnlyAtVerticesThatTrianglesUse) {
    test::Md2File file = SquareModel({"frame0"});
    file.frames[0].vertices.push_back({200, 200, 200, 0});
    const auto loose = LoadModel(file);
    EXPECT_EQ(MakeInstance(*loose)->maxZ, 0.0f);
}

// Which clip runs

TEST_F(Instance, DoesNotRestartTheClipThatRuns) {
    Play("stand", MD2_AnimationMode::Loop);
    Step();
    instance->Animate(arrayMode, oneFrame / 2);
    Play("stand", MD2_AnimationMode::Loop, 7.0f);
    EXPECT_EQ(instance->GetCurrentFrame(), 1);
    EXPECT_FLOAT_EQ(instance->GetInterpolation(), 0.5f);
    EXPECT_EQ(instance->speed, 1.0f);
}

TEST_F(Instance, RestartsTheSameClipInAnotherMode) {
    Play("run", MD2_AnimationMode::Loop);
    Step();
    Play("run", MD2_AnimationMode::Once, 3.0f);
    EXPECT_EQ(instance->GetCurrentFrame(), 3);
    EXPECT_EQ(instance->GetNextFrame(), 4);
    EXPECT_EQ(instance->GetFirstFrame(), 3);
    EXPECT_EQ(instance->GetLastFrame(), 4);
    EXPECT_EQ(instance->GetInterpolation(), 0.0f);
    EXPECT_EQ(instance->speed, 3.0f);
    EXPECT_EQ(instance->GetMode(), MD2_AnimationMode::Once);
}

TEST_F(Instance, KeepsWhatItPlaysWhenTheNameIsUnknown) {
    Play("run", MD2_AnimationMode::Loop);
    Step();
    Play("dance", MD2_AnimationMode::Once, 9.0f);
    EXPECT_EQ(instance->GetAnimationName(), "run");
    EXPECT_EQ(instance->GetMode(), MD2_AnimationMode::Loop);
    EXPECT_EQ(instance->GetCurrentFrame(), 4);
    EXPECT_EQ(instance->speed, 1.0f);
}

// How fast it runs

TEST_F(Instance, PlaysTenFramesASecondAtSpeedOne) {
    Play("stand", MD2_AnimationMode::Loop, 0.5f);
    instance->Animate(arrayMode, 0.1f);
    EXPECT_FLOAT_EQ(instance->GetInterpolation(), 0.5f);
    Play("run", MD2_AnimationMode::Loop, 5.0f);
    instance->Animate(arrayMode, 0.01f);
    EXPECT_FLOAT_EQ(instance->GetInterpolation(), 0.5f);
}

TEST_F(Instance, DropsTheExcessOfAStepAndMovesOneFrameAtMost) {
    Play("stand", MD2_AnimationMode::Loop);
    instance->Animate(arrayMode, 0.95f * oneFrame);
    instance->Animate(arrayMode, 0.5f * oneFrame);
    EXPECT_EQ(instance->GetCurrentFrame(), 1);
    EXPECT_EQ(instance->GetInterpolation(), 0.0f);
    EXPECT_FLOAT_EQ(Height(), 1.0f);
    instance->Animate(arrayMode, 1000.0f);
    EXPECT_EQ(instance->GetCurrentFrame(), 2);
    EXPECT_EQ(instance->GetInterpolation(), 0.0f);
}

TEST_F(Instance, AStepOfNoTimeChangesNothing) {
    Play("stand", MD2_AnimationMode::Loop);
    instance->Animate(arrayMode, oneFrame / 2);
    EXPECT_FALSE(instance->Animate(arrayMode, 0.0f));
    EXPECT_FLOAT_EQ(instance->GetInterpolation(), 0.5f);
    EXPECT_FLOAT_EQ(Height(), 0.5f);
}

// How it ends

TEST_F(Instance, LoopBlendsFromItsLastFrameIntoItsFirstAndTellsOncePerPass) {
    Play("stand", MD2_AnimationMode::Loop);
    for (int pass = 0; pass < 3; ++pass) {
        EXPECT_FALSE(Step());
        EXPECT_FALSE(Step());
        EXPECT_EQ(instance->GetCurrentFrame(), 2);
        EXPECT_EQ(instance->GetNextFrame(), 0);
        EXPECT_FALSE(instance->Animate(arrayMode, oneFrame / 4));
        EXPECT_FLOAT_EQ(Height(), 1.5f);
        EXPECT_TRUE(Step());
        EXPECT_TRUE(instance->IsAnimationFinished());
        EXPECT_EQ(instance->GetCurrentFrame(), 0);
        EXPECT_EQ(instance->GetNextFrame(), 1);
    }
    instance->Animate(arrayMode, 0.0f);
    EXPECT_FALSE(instance->IsAnimationFinished());
}

TEST_F(Instance, LoopsAtTheEndOfTheModelIntoItsOwnFirstFrame) {
    const auto endingInRun = LoadModel(SquareModel({"stand0", "run0", "run1"}));
    instance = MakeInstance(*endingInRun);
    Play("run", MD2_AnimationMode::Loop);
    for (int pass = 0; pass < 2; ++pass) {
        EXPECT_FALSE(Step());
        EXPECT_EQ(instance->GetCurrentFrame(), 2);
        EXPECT_EQ(instance->GetNextFrame(), 1);
        EXPECT_FALSE(instance->Animate(arrayMode, oneFrame / 2));
        EXPECT_FLOAT_EQ(Height(), 1.5f);
        EXPECT_TRUE(Step());
        EXPECT_EQ(instance->GetCurrentFrame(), 1);
        EXPECT_EQ(instance->GetNextFrame(), 2);
    }
}

TEST_F(Instance, LoopOfOneFrameWrapsAtEveryStep) {
    Play("die", MD2_AnimationMode::Loop);
    EXPECT_EQ(instance->GetNextFrame(), 6);
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(Step());
        EXPECT_EQ(instance->GetCurrentFrame(), 5);
        EXPECT_EQ(instance->GetNextFrame(), 5);
    }
    EXPECT_FLOAT_EQ(Height(), 5.0f);
}

TEST_F(Instance, OneFrameAtTheEndOfTheModelBlendsSafely) {
    Play("end", MD2_AnimationMode::Loop);
    EXPECT_EQ(instance->GetNextFrame(), 7);
    EXPECT_FALSE(instance->Animate(arrayMode, oneFrame / 2));
    EXPECT_FLOAT_EQ(Height(), 3.0f);  // half way from frame 6 to frame 0, which stands in for the missing one
    EXPECT_FALSE(instance->Animate(bufferMode, 0.0f));
    EXPECT_TRUE(Step());
    EXPECT_FLOAT_EQ(Height(), 6.0f);
}

TEST_F(Instance, OnceStopsWithTheLastMeshThatWasComputed) {
    Play("run", MD2_AnimationMode::Once);
    EXPECT_FALSE(Step());
    EXPECT_EQ(instance->GetNextFrame(), 3);
    EXPECT_FALSE(instance->Animate(arrayMode, 0.75f * oneFrame));
    EXPECT_FLOAT_EQ(Height(), 3.25f);
    EXPECT_TRUE(Step());
    EXPECT_TRUE(instance->IsAnimationFinished());
    EXPECT_EQ(instance->GetMode(), MD2_AnimationMode::Freeze);
    EXPECT_TRUE(Step());
    EXPECT_TRUE(instance->IsAnimationFinished());
    EXPECT_FLOAT_EQ(Height(), 3.25f);
}

TEST_F(Instance, OnceCanBePlayedAgainOnceItHasStopped) {
    Play("run", MD2_AnimationMode::Once);
    for (int i = 0; i < 2; ++i)
        Step();
    Play("run", MD2_AnimationMode::Once);
    EXPECT_EQ(instance->GetMode(), MD2_AnimationMode::Once);
    EXPECT_EQ(instance->GetCurrentFrame(), 3);
    EXPECT_FALSE(Step());
}

TEST_F(Instance, FreezeShowsItsFirstFrameInTheNextStep) {
    for (const int renderMode : {arrayMode, immediateMode}) {
        Play("stand", MD2_AnimationMode::Loop);
        Step();
        Play("run", MD2_AnimationMode::Freeze);
        EXPECT_FLOAT_EQ(Height(), 1.0f);
        EXPECT_TRUE(instance->Animate(renderMode, 10.0f));
        EXPECT_FLOAT_EQ(Height(), 3.0f);
        EXPECT_TRUE(instance->Animate(renderMode, 10.0f));
        EXPECT_FLOAT_EQ(Height(), 3.0f);
    }
    EXPECT_EQ(instance->GetCurrentFrame(), 3);
}

// Lists

TEST_F(Instance, PlaysTheClipsOfAListOneAfterTheOther) {
    AnimationList list({{"stand", MD2_AnimationMode::Sequence, 1.0f},
                        {"run", MD2_AnimationMode::Sequence, 2.0f},
                        {"die", MD2_AnimationMode::Loop, 1.0f}});
    instance->PlayBorrowedList(&list);
    EXPECT_EQ(instance->GetAnimationName(), "stand");
    EXPECT_EQ(list.GetNext(), 1);
    EXPECT_FALSE(Step());
    EXPECT_EQ(instance->GetCurrentFrame(), 1);
    EXPECT_FALSE(Step());  // the last frame was only blended towards
    EXPECT_EQ(instance->GetAnimationName(), "run");
    EXPECT_EQ(instance->GetCurrentFrame(), 3);
    EXPECT_EQ(instance->speed, 2.0f);
    EXPECT_FALSE(Step());
    EXPECT_EQ(instance->GetAnimationName(), "die");
    EXPECT_EQ(instance->GetMode(), MD2_AnimationMode::Loop);
}

TEST_F(Instance, TellsTheEndOfAListWhenItsLastSequenceEnds) {
    AnimationList list(
        {{"run", MD2_AnimationMode::Sequence, 1.0f}, {"stand", MD2_AnimationMode::Sequence, 1.0f}});
    instance->PlayBorrowedList(&list);
    EXPECT_FALSE(Step());
    EXPECT_EQ(instance->GetAnimationName(), "stand");
    EXPECT_FALSE(Step());
    EXPECT_TRUE(Step());
    EXPECT_EQ(instance->GetAnimationName(), "run");
    EXPECT_EQ(list.GetNext(), 1);
}

TEST_F(Instance, SequenceOfEqualNeighboursRunsOnPastItsGroupSafely) {
    AnimationList list({{"end", MD2_AnimationMode::Sequence, 1.0f}});
    instance->PlayBorrowedList(&list);
    for (int i = 1; i < 5; ++i) {
        EXPECT_TRUE(Step());
        EXPECT_EQ(instance->GetCurrentFrame(), 6 + i);
        EXPECT_FLOAT_EQ(Height(), 0.0f);
    }
}

TEST_F(Instance, NextAnimationLeavesALoop) {
    AnimationList list({{"run", MD2_AnimationMode::Loop, 1.0f}, {"stand", MD2_AnimationMode::Loop, 1.0f}});
    instance->PlayBorrowedList(&list);
    instance->NextAnimation();
    EXPECT_EQ(instance->GetAnimationName(), "stand");
    instance->NextAnimation();
    EXPECT_EQ(instance->GetAnimationName(), "run");
}

TEST_F(Instance, NextAnimationWithoutAListDoesNothing) {
    Play("run", MD2_AnimationMode::Loop);
    instance->NextAnimation();
    AnimationList empty;
    instance->PlayBorrowedList(&empty);
    EXPECT_EQ(instance->GetAnimationName(), "run");
}

TEST_F(Instance, FreesAListThatItTakesAndLeavesABorrowedOne) {
    auto replaced =
        std::make_unique<AnimationList>(std::vector<MD2_Animation>{{"run", MD2_AnimationMode::Loop, 1.0f}});
    instance->PlayAnimationList(replaced.get());
    EXPECT_EQ(instance->GetAnimationList(), replaced.get());
    AnimationList borrowed({{"die", MD2_AnimationMode::Loop, 1.0f}});
    instance->PlayBorrowedList(&borrowed);
    EXPECT_EQ(instance->GetAnimationName(), "die");
    instance->PlayAnimationList(
        new AnimationList(std::vector<MD2_Animation>{{"stand", MD2_AnimationMode::Loop, 1.0f}}));
    EXPECT_EQ(instance->GetAnimationName(), "stand");
    instance.reset();
    EXPECT_EQ(replaced->GetCount(), 1);
    EXPECT_EQ(borrowed.GetNext(), 1);
}

// The mesh

TEST_F(Instance, WritesTheBufferInModeZeroAndTheArraysInTheOthers) {
    const std::vector<float> start = instance->GetVertexArray();
    Play("stand", MD2_AnimationMode::Loop);
    instance->Animate(bufferMode, oneFrame / 2);
    EXPECT_EQ(instance->GetVertexArray(), start);
    EXPECT_FLOAT_EQ(test::ReadVertexBuffer(*instance).vertices[1], -4.5f);
    for (const int renderMode : {arrayMode, immediateMode}) {
        instance->Animate(renderMode, oneFrame / 8);
        EXPECT_FLOAT_EQ(test::ReadVertexBuffer(*instance).vertices[1], -4.5f);
    }
    EXPECT_FLOAT_EQ(Height(), 0.75f);
    instance->Animate(bufferMode, 0.0f);
    EXPECT_EQ(test::ReadVertexBuffer(*instance).vertices, instance->GetVertexArray());
    EXPECT_EQ(test::ReadVertexBuffer(*instance).normals, instance->GetNormalArray());
}

TEST_F(Instance, ScalesTheBlendedMesh) {
    const auto small = MakeInstance(*model, 0.125f);
    small->SetAnimation({"stand", MD2_AnimationMode::Loop, 1.0f});
    small->Animate(arrayMode, oneFrame / 2);
    EXPECT_THAT(small->GetVertexArray(),
                ::testing::ElementsAre(-0.625f, -0.5625f, 0, -0.625f, 0.6875f, 0, 0.625f, 0.6875f, 0, -0.625f,
                                       -0.5625f, 0, 0.625f, 0.6875f, 0, 0.625f, -0.5625f, 0));
}

TEST_F(Instance, KeepsBlendedNormalsAtLengthOne) {
    test::Md2File file = SquareModel({"turn0", "turn1"});
    for (MD2_PackedVertex& vertex : file.frames[1].vertices)
        vertex.normalIndex = 32;  // (0, 1, 0)
    const auto turning = LoadModel(file);
    const auto turned = MakeInstance(*turning);
    turned->SetAnimation({"turn", MD2_AnimationMode::Loop, 1.0f});
    turned->Animate(arrayMode, oneFrame / 2);
    for (std::size_t i = 0; i < turned->GetNormalArray().size(); i += 3) {
        EXPECT_FLOAT_EQ(turned->GetNormalArray()[i], 0.0f);
        EXPECT_FLOAT_EQ(turned->GetNormalArray()[i + 1], std::sqrt(0.5f));
        EXPECT_FLOAT_EQ(turned->GetNormalArray()[i + 2], std::sqrt(0.5f));
    }
}

TEST_F(Instance, FreesItsBuffer) {
    const unsigned int buffer = instance->GetVertexBuffer();
    EXPECT_TRUE(glIsBufferARB(buffer));
    instance.reset();
    EXPECT_FALSE(glIsBufferARB(buffer));
}

// The picture

class DrawnInstance : public Instance {
protected:
    DrawnInstance() {
        glPushAttrib(GL_ALL_ATTRIB_BITS);
        glViewport(0, 0, 256, 256);
        glEnable(GL_TEXTURE_2D);
        glEnable(GL_LIGHTING);
        glEnable(GL_LIGHT0);
        glFrontFace(GL_CW);
        glEnable(GL_CULL_FACE);
        glMatrixMode(GL_PROJECTION);
        glLoadIdentity();
        glOrtho(-10, 10, -10, 10, -10, 10);
        glMatrixMode(GL_MODELVIEW);
        glLoadIdentity();
        glGenTextures(1, &texture);
        glBindTexture(GL_TEXTURE_2D, texture);
        const std::uint8_t quarters[] = {255, 0, 0, 255, 0, 255, 0, 255, 0, 0, 255, 255, 255, 255, 255, 255};
        glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 2, 2, 0, GL_RGBA, GL_UNSIGNED_BYTE, quarters);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
        glBindTexture(GL_TEXTURE_2D, 0);
        instance->GetMaterial()->SetTextureId(texture);
    }
    ~DrawnInstance() override {
        glDeleteTextures(1, &texture);
        glPopAttrib();
    }

    test::Picture Draw(int renderMode, bool selectionPass = false) {
        glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
        if (renderMode == bufferMode)
            instance->DrawVBO(selectionPass, nullptr, nullptr, nullptr);
        else if (renderMode == arrayMode)
            instance->DrawVertexArray(selectionPass, nullptr, nullptr, nullptr);
        else
            instance->DrawImmediate(selectionPass, nullptr, nullptr, nullptr);
        return test::ReadPicture(0, 0, 256, 256);
    }

    GLuint texture = 0;
};

TEST_F(DrawnInstance, LooksTheSameInAllModes) {
    Play("stand", MD2_AnimationMode::Loop);
    instance->Animate(bufferMode, oneFrame / 2);
    instance->Animate(arrayMode, 0.0f);
    const test::Picture buffered = Draw(bufferMode);
    EXPECT_EQ(buffered.CountDifferences(Draw(arrayMode), 0), 0);
    EXPECT_EQ(buffered.CountDifferences(Draw(immediateMode), 0), 0);
    EXPECT_EQ(buffered.Red(5, 5), 0);
    EXPECT_GT(buffered.Red(128, 128) + buffered.Green(128, 128) + buffered.Blue(128, 128), 100);
}

TEST_F(DrawnInstance, WearsItsPictureUpright) {
    const test::Picture picture = Draw(bufferMode);
    EXPECT_GT(picture.Red(90, 90), 100);
    EXPECT_EQ(picture.Green(90, 90), 0);
    EXPECT_GT(picture.Green(160, 90), 100);
    EXPECT_EQ(picture.Blue(160, 90), 0);
    EXPECT_GT(picture.Blue(90, 160), 100);
    EXPECT_EQ(picture.Red(90, 160), 0);
    EXPECT_GT(picture.Red(160, 160), 100);
    EXPECT_GT(picture.Blue(160, 160), 100);
}

TEST_F(DrawnInstance, ShowsOldArraysUntilTheNextStepOfTheirMode) {
    const test::Picture still = Draw(arrayMode);
    Play("stand", MD2_AnimationMode::Loop);
    instance->Animate(bufferMode, oneFrame / 2);
    EXPECT_EQ(still.CountDifferences(Draw(arrayMode), 0), 0);
    EXPECT_GT(still.CountDifferences(Draw(bufferMode), 0), 0);
}

TEST_F(DrawnInstance, LeavesMaterialAndPictureOutOfTheSelectionPass) {
    glDisable(GL_LIGHTING);
    glColor4f(1, 0, 1, 1);
    const test::Picture picture = Draw(bufferMode, true);
    EXPECT_EQ(picture.Red(128, 128), 255);
    EXPECT_EQ(picture.Green(128, 128), 0);
    EXPECT_EQ(picture.Blue(128, 128), 255);
    GLint bound = -1;
    glGetIntegerv(GL_TEXTURE_BINDING_2D, &bound);
    EXPECT_EQ(bound, 0);
}

TEST_F(DrawnInstance, LeavesTheFixedFunctionAndColorMaterialBehind) {
    for (const int renderMode : {bufferMode, arrayMode, immediateMode}) {
        glDisable(GL_COLOR_MATERIAL);
        Draw(renderMode, true);
        EXPECT_TRUE(glIsEnabled(GL_COLOR_MATERIAL));
        EXPECT_EQ(glGetHandleARB(GL_PROGRAM_OBJECT_ARB), 0u);
    }
}

}  // namespace
}  // namespace tolvane
