#pragma once

#include <iostream>
#include <sstream>
#include <string>

namespace tolvane::test {

// What a person types at the console, for as long as this object lives.
class TypedAnswer {
public:
    explicit TypedAnswer(const std::string& text) : answer(text), keyboard(std::cin.rdbuf(answer.rdbuf())) {}
    ~TypedAnswer() {
        std::cin.rdbuf(keyboard);
        std::cin.clear();
    }
    TypedAnswer(const TypedAnswer&) = delete;
    TypedAnswer& operator=(const TypedAnswer&) = delete;

private:
    std::istringstream answer;
    std::streambuf* keyboard;
};

}  // namespace tolvane::test
