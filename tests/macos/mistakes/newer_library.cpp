// type check: 'to_chars' is unavailable
#include <charconv>

char* written(char* first, char* last, double number) {
#ifdef MISTAKE
    return std::to_chars(first, last, number).ptr;
#else
    return std::to_chars(first, last, static_cast<long>(number)).ptr;
#endif
}
