#include "text/GraphemeCluster.h"

#include <utf8proc.h>

#include "text/CodePoint.h"

namespace vantrel::text {

bool GraphemeCluster::isLetter() const {
    switch (utf8proc_category(static_cast<utf8proc_int32_t>(CodePoint::first(bytes_).value))) {
        case UTF8PROC_CATEGORY_LU:
        case UTF8PROC_CATEGORY_LL:
        case UTF8PROC_CATEGORY_LT:
        case UTF8PROC_CATEGORY_LM:
        case UTF8PROC_CATEGORY_LO:
            return true;
        default:
            return false;
    }
}

}  // namespace vantrel::text
