// Spellings of declared types.
#include "generator/model/model.h"

namespace generator {

std::string spelled(const std::string &type, const std::vector<std::string> &bounds) {
    std::string text = type;
    for (std::size_t i = 0; i < bounds.size(); ++i) text += (i == 0 ? " [" : "[") + bounds[i] + "]";
    return text;
}

}  // namespace generator
