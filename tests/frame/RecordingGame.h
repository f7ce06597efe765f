#pragma once

#include <string>
#include <vector>

#include "game/Game3D.h"
#include "scene/Element3D.h"

namespace tolvane::test {

// Notes which call of the frame arrived with what.
class RecordingGame final : public Game3D {
public:
    void ExecuteMove() override { calls.push_back("ExecuteMove"); }
    void OnActionFinished(Element3D* element) override { Note("OnActionFinished", element); }
    void OnElementPicked(Element3D* element) override { Note("OnElementPicked", element); }
    void AdvancePawn(int figureType) override {
        calls.push_back("AdvancePawn " + std::to_string(figureType));
    }
    void StartDemo() override { calls.push_back("StartDemo"); }

    std::vector<std::string> calls;

private:
    void Note(const std::string& name, const Element3D* element) {
        calls.push_back(name + " " + std::to_string(element->GetColumn()) + "," +
                        std::to_string(element->GetRow()));
    }
};

}  // namespace tolvane::test
