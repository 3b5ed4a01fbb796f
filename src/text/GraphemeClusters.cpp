#include "text/GraphemeClusters.h"

#include <utf8proc.h>

#include "text/CodePoint.h"

namespace vantrel::text {

std::size_t GraphemeClusters::firstLengthByProperties(std::string_view text) {
    if (text.empty()) return 0;
    CodePoint last = CodePoint::first(text);
    std::size_t length = last.length;
    utf8proc_int32_t state = 0;
    while (length < text.size()) {
        const CodePoint next = CodePoint::first(text.substr(length));
        if (utf8proc_grapheme_break_stateful(static_cast<utf8proc_int32_t>(last.value),
                                             static_cast<utf8proc_int32_t>(next.value), &state)) {
            break;
        }
        length += next.length;
        last = next;
    }
    return length;
}

}  // namespace vantrel::text
