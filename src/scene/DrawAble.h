#pragma once

#include "assets/Vertex.h"

namespace tolvane {

class MD2_Instance;

// How the geometry of a model reaches GL; the number is the renderMode argument of Draw and Update.
enum RenderMode : int {
    renderVertexBuffer = 0,
    renderVertexArray = 1,
    renderImmediate = 2,
};

// Everything that the scene can hold. Objects are deleted by their owners through their own class, never
// through DrawAble. All calls come from the frame loop's thread with a GL context current.
class DrawAble {
public:
    // Takes part in the scene pass; cleared, it neither updates nor draws.
    bool active = true;
    Vertex position;     // world units
    Vertex boundCentre;  // bounding sphere, relative to position
    float boundRadius = 0.0f;
    float distance = 0.0f;         // sort key of the scene pass, written by it alone
    bool skipWhenOutside = false;  // left out when outside the frustum, even while busy

    // Draws the object. In the selection pass textures, materials and effects are left out. The two
    // positions are null where the caller has none.
    virtual void Draw(int renderMode, bool useDisplayLists, bool selectionPass, bool blending,
                      const Vertex* eyePosition, const Vertex* lightPosition) = 0;
    // Moves the animation on by dt seconds.
    virtual void Update(int renderMode, float dt);
    // Turn by degrees; an angle that reaches a full turn loses one full turn, once.
    virtual void RotateX(float degrees);
    virtual void RotateY(float degrees);
    virtual void RotateZ(float degrees);
    virtual void Translate(float dx, float dy, float dz);
    // Despite its name: true while the object is busy and wants UpdateEffects.
    virtual bool IsFinished();
    // Runs script and effects for dt seconds; true when a script has ended in this call.
    virtual bool UpdateEffects(float dt, const Vertex* eyePosition);
    // Callers read the position and write it through this address.
    virtual Vertex* GetPosition();
    virtual float GetRotationX();
    virtual float GetRotationY();
    virtual float GetRotationZ();
    virtual void BuildDisplayLists();

protected:
    DrawAble() = default;
    ~DrawAble() = default;

    // Takes over the bounding sphere of the instance that gives the object its shape.
    void TakeBound(const MD2_Instance& instance);
    // Translation, then the rotations about x, y and z, onto the current matrix.
    void ApplyStandardTransform() const;

    unsigned int displayList = 0;
    unsigned int secondDisplayList = 0;
    float rotationX = 0.0f;  // degrees
    float rotationY = 0.0f;
    float rotationZ = 0.0f;
    bool busy = false;
};

}  // namespace tolvane
