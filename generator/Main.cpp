#include "generator/Compiler.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    try {
        return korva::schemac::run({argv + 1, argv + argc}, std::cout, std::cerr);
    } catch (const std::exception& failure) {
        std::cerr << "korva-schemac: " << failure.what() << "\n";
        return 1;
    }
}
