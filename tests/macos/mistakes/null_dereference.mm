// analysis: Dereference of null pointer
#import <AppKit/AppKit.h>

#ifdef MISTAKE
int first(const int* _Nullable numbers) {
    if (numbers == nullptr) return *numbers;
    return 0;
}
#else
int first(const int* _Nullable numbers) { return numbers == nullptr ? 0 : *numbers; }
#endif
