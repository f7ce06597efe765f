#pragma once

namespace tolvane {

class Element3D;

// The five calls by which the frame reaches the game.
class Game3D {
public:
    // The selected move is to be played.
    virtual void ExecuteMove() = 0;
    // A drawable's update reported that its script has ended.
    virtual void OnActionFinished(Element3D* element) = 0;
    // The user has clicked a figure or a field.
    virtual void OnElementPicked(Element3D* element) = 0;
    // The choice of a promotion; a FigureType as a number.
    virtual void AdvancePawn(int figureType) = 0;
    // The demo game is asked for.
    virtual void StartDemo() = 0;

protected:
    ~Game3D() = default;
};

}  // namespace tolvane
