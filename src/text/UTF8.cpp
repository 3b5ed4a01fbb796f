#include "text/UTF8.h"
namespace vantrel::text {
std::string repairedUTF8(std::string_view bytes) { return std::string(bytes); }
}  // namespace vantrel::text
