// What describe() and find() of the proxy module know of the functions: chapters with their
// sections, and the declared types of each call. Names of parameters and the result's type stand in
// the docstrings, and are not repeated.

#include "generator/check/rows.h"
#include "generator/emit/emitters.h"
#include "generator/emit/output.h"

namespace generator {
namespace {

const std::string kFile = R"("""The functions of the SDK by chapter, as tables.

Made from all declarations by generator/emit/emit_manual.cpp. Do not edit.
"""

# Chapters, each with a line "function|type of an argument|...|> what joins the status" for every
# function; a line "# section" stands above those of a section.
CHAPTERS = (
@chapters@)
)";

const std::string kChapter = R"(    (@purpose@, '''\
@lines@'''),
)";

std::string line_of(const Row &row) {
    std::string line = row.name;
    for (const auto &argument : row.arguments) line += "|" + argument.type;
    if (row.function != nullptr && !row.function->appended.empty())
        line += "|> " + row.function->appended;
    return line + "\n";
}

std::string lines_of(const Model &model, const std::string &header) {
    std::string lines;
    std::string section;
    for (const auto &row : rows_of_header(model, header)) {
        if (row.function == nullptr) continue;
        if (row.function->section != section) {
            section = row.function->section;
            lines += "# " + section + "\n";
        }
        lines += line_of(row);
    }
    return lines;
}

}  // namespace

std::string emit_manual(const Model &model) {
    std::string chapters;
    for (const auto &header : model.headers) {
        const std::string lines = lines_of(model, header);
        const auto purpose = model.purposes.find(header);
        if (!lines.empty() && purpose != model.purposes.end())
            chapters += fill(kChapter, {{"purpose", quoted(purpose->second)}, {"lines", lines}});
    }
    return fill(kFile, {{"chapters", chapters}});
}

}  // namespace generator
