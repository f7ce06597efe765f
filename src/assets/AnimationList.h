#pragma once

#include <vector>

#include "assets/MD2_Animation.h"

namespace tolvane {

// Clips in the order in which they are played, for ever in a circle. Clips in the mode Sequence lead from
// one entry to the next; two neighbours of that kind have to differ in name or mode, because an instance
// does not restart the clip that it is playing.
class AnimationList {
public:
    AnimationList() = default;
    explicit AnimationList(std::vector<MD2_Animation> clips);

    // Copies the entry whose turn it is to out and moves on; leaves out alone when the list is empty.
    void Next(MD2_Animation& out);
    // The next entry will be the first again.
    void Rewind();
    // Chooses the next entry; an index outside the list stands for the first.
    void SetNext(int index);

    // Index of the next entry, equal to the count when the last has been handed out.
    int GetNext() const { return next; }
    int GetCount() const { return count; }

private:
    std::vector<MD2_Animation> animations;
    int next = 0;
    int count = 0;
};

}  // namespace tolvane
