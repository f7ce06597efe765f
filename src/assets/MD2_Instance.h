#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "assets/AnimationList.h"
#include "assets/MD2_Animation.h"
#include "assets/MD2_Model.h"
#include "assets/Material.h"
#include "assets/Vertex.h"

namespace tolvane {

class Shader;

// One animated use of a model: its own clip and playing position, its own mesh, its own material.
// Whoever holds an instance calls Animate once a frame and one of the draw operations when it is drawn.
class MD2_Instance {
public:
    float speed = 0.0f;        // of the running clip
    Vertex boundCentre;        // centre of the box of frame 0, scaled
    float boundRadius = 0.0f;  // largest half extent of that box, not the distance to a corner
    float minX = 0.0f;         // the box of frame 0, scaled
    float maxX = 0.0f;
    float minY = 0.0f;
    float maxY = 0.0f;
    float minZ = 0.0f;
    float maxZ = 0.0f;

    // The model is not owned and has to outlive the instance. The new instance shows frame 0 and is frozen.
    MD2_Instance(MD2_Model* sharedModel, unsigned int textureId, unsigned int normalMapId, float factor);
    ~MD2_Instance();
    MD2_Instance(const MD2_Instance&) = delete;
    MD2_Instance& operator=(const MD2_Instance&) = delete;

    // Choosing what plays

    // Starts the clip, unless it is the one that runs already, by name and mode. A name that the model
    // lacks changes nothing.
    void SetAnimation(const MD2_Animation& animation);
    // Plays what the list yields next, and with NextAnimation or at the end of a Sequence clip the one after
    // it. The instance frees the list at its own end; a list that was set before is let go of, not freed.
    void PlayAnimationList(AnimationList* list);
    // The same with a list that stays the caller's and has to outlive its use here.
    void PlayBorrowedList(AnimationList* list);
    // Goes on to the next entry of the list; does nothing where there is none.
    void NextAnimation();

    // Moving on

    // Moves the clip on by dt seconds, by one frame at most, and brings the mesh of that render mode up to
    // date. True when a loop wrapped or a clip stopped in this step, when the last clip of a sequence ended,
    // and whenever nothing moves: frozen, or with the mesh of a frozen clip still owed.
    bool Animate(int renderMode, float dt);
    // What the latest moving step has answered.
    bool IsAnimationFinished() const { return animationFinished; }
    // Computes the mesh between the two current frames: into the buffer in render mode 0, else into the
    // arrays. Does nothing for a frozen clip that has shown its frame.
    void InterpolateFrames(int renderMode);

    // Drawing: sets up the material, unless selectionPass, draws the mesh, and leaves the shader again

    void DrawVBO(bool selectionPass, Shader* shader, const Vertex* eyePosition, const Vertex* lightPosition);
    void DrawVertexArray(bool selectionPass, Shader* shader, const Vertex* eyePosition,
                         const Vertex* lightPosition);
    void DrawImmediate(bool selectionPass, Shader* shader, const Vertex* eyePosition,
                       const Vertex* lightPosition);

    Material* GetMaterial() { return &material; }

    // Where it stands
    const std::string& GetAnimationName() const { return animationName; }
    MD2_AnimationMode GetMode() const { return mode; }
    const AnimationList* GetAnimationList() const { return animationList; }
    int GetCurrentFrame() const { return currentFrame; }
    int GetNextFrame() const { return nextFrame; }
    int GetFirstFrame() const { return firstFrame; }
    int GetLastFrame() const { return lastFrame; }
    float GetInterpolation() const { return interpolation; }
    // Three floats a corner, in the order of the triangles.
    const std::vector<float>& GetVertexArray() const { return vertexArray; }
    const std::vector<float>& GetNormalArray() const { return normalArray; }
    unsigned int GetVertexBuffer() const { return vertexBuffer; }

private:
    // A vertex between two frames, scaled.
    struct BlendedVertex {
        Vertex position;
        Vertex normal;
    };

    void BuildFirstMesh();
    void BuildBox();
    void BuildVertexBuffer();
    void PrintStatistics(int bufferSize) const;
    void PlayList(AnimationList* list, bool owned);
    void AdvanceFrame();
    void AdvanceSequence();
    void EndPass();
    const MD2_Frame& FrameAt(int index) const;
    void BlendVertices();
    void CopyCorners(float* vertices, float* normals) const;
    void WriteVertexBuffer() const;
    static void EndDraw();
    std::size_t CornerFloats() const { return triangles->size() * 9; }

    const MD2_Header* header;
    const std::vector<MD2_Triangle>* triangles;
    const std::vector<MD2_Frame>* frames;
    MD2_Model* model;
    Material material;
    float scale;                 // on every vertex
    float interpolation = 0.0f;  // place between the two frames, 0 to 1
    std::string animationName;
    AnimationList* animationList = nullptr;
    bool ownsAnimationList = false;
    MD2_AnimationMode mode = MD2_AnimationMode::Freeze;
    int currentFrame = 0;
    int nextFrame = 0;  // may stand one past the last frame of the model
    int firstFrame = 0;
    int lastFrame = 0;
    int frameCount = 0;
    bool animationFinished = false;
    std::vector<float> vertexArray;
    std::vector<float> normalArray;
    unsigned int vertexBuffer = 0;
    bool forceUpdate = false;            // a frozen clip still owes the mesh of its frame
    std::vector<BlendedVertex> blended;  // one a vertex of the model, kept between steps
};

}  // namespace tolvane
