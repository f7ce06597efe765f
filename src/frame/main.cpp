#include <iostream>
#include <string>

#include "frame/ChessApplication.h"

int main() {
    std::string line;
    std::cout << std::unitbuf;  // whoever watches the console sees each line at once, through a pipe too
    tolvane::ChessApplication application;
    application.Run();
    std::cout << "Press \"Enter\" to exit" << std::endl;
    std::getline(std::cin, line);
    return 0;
}
