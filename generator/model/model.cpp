// Spellings of declared types.
#include "generator/model/model.h"

namespace generator {

std::string spelled(const std::string &type, const std::vector<std::string> &bounds) {
    std::string text = type;
    for (std::size_t i = 0; i < bounds.size(); ++i) text += (i == 0 ? " [" : "[") + bounds[i] + "]";
    return text;
}

std::string declared(const Variable &variable, const std::string &name) {
    const bool close = name.empty() || variable.type.back() == '*';
    std::string text = variable.type + (close ? "" : " ") + name;
    for (const auto &bound : variable.bounds) text += "[" + bound + "]";
    return text;
}

std::string text_of(const Place &place) { return place.file + ":" + std::to_string(place.line); }

}  // namespace generator
