#include "assets/AnimationList.h"

#include <cstddef>
#include <utility>

namespace tolvane {

AnimationList::AnimationList(std::vector<MD2_Animation> clips)
    : animations(std::move(clips)), count(static_cast<int>(animations.size())) {}

void AnimationList::Next(MD2_Animation& out) {
    if (count == 0)
        return;
    if (next >= count)
        next = 0;
    out = animations[static_cast<std::size_t>(next)];
    ++next;
}

void AnimationList::Rewind() {
    next = 0;
}

void AnimationList::SetNext(int index) {
    next = index < 0 ? 0 : index;
}

}  // namespace tolvane
