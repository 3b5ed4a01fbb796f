#include <iostream>
#include <string>
#include <vector>

#include "app/VantrelApp.h"

int main(int count, char** values) {
    const std::vector<std::string> arguments(values + (count > 0 ? 1 : 0), values + count);
    return vantrel::app::VantrelApp(std::cin, std::cout, std::cerr).run(arguments);
}
