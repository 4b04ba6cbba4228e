// Reads the tables: lines, columns, numbers.
#include "generator/read/read_catalogue.h"

#include <charconv>
#include <functional>
#include <sstream>

namespace generator {
namespace {

using Columns = std::vector<std::string>;
using ReadRow = std::function<void(const Place &, const Columns &)>;

// Hands the columns of each line to `read`, comments and blank lines left out.
void for_each_row(const std::string &file, const std::string &source, Faults &faults,
                  const ReadRow &read) {
    std::istringstream lines(source);
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        if (line.empty() || line[0] == '#') continue;
        const std::size_t end = line.find_last_not_of(" \t\r") + 1;
        if (end != line.size())
            faults.add({file, number}, "blanks", "the line ends in blanks; remove them");
        line.resize(end);
        if (end != 0) read({file, number}, split(line, '\t'));
    }
}

bool has_columns(const Place &place, const Columns &columns, std::size_t least, Faults &faults) {
    if (columns.size() >= least) return true;
    faults.add(place, "columns",
               "the line has " + std::to_string(columns.size()) + " of its " +
                   std::to_string(least) + " columns; separate them by tabs");
    return false;
}

template <typename Number>
bool read_number(const std::string &text, Number &value) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && end == text.data() + text.size();
}

}  // namespace

std::vector<std::string> split(const std::string &text, char separator) {
    std::vector<std::string> pieces;
    std::istringstream stream(text);
    std::string piece;
    while (std::getline(stream, piece, separator)) pieces.push_back(piece);
    return pieces;
}

void read_types(const std::string &file, const std::string &source, Model &model, Faults &faults) {
    for_each_row(file, source, faults, [&](const Place &place, const Columns &columns) {
        TypeRow row{columns[0], {}, place, ""};
        if (columns.size() > 1) row.pretty = split(columns[1], '|');
        model.types.push_back(std::move(row));
    });
}

void read_kinds(const std::string &file, const std::string &source, Model &model, Faults &faults) {
    KindRow group;
    for_each_row(file, source, faults, [&](const Place &place, const Columns &columns) {
        const std::string &text = columns[0];
        if (text[0] != '[') {
            if (group.kind == Kind::none) {
                faults.add(place, "kind-group", "'" + text + "' stands before the first [kind]");
                return;
            }
            KindRow row = group;
            row.type = text;
            row.place = place;
            model.kinds.push_back(std::move(row));
            return;
        }
        const auto words = split(text.substr(1, text.find(']') - 1), ' ');
        group = {};
        group.kind = words.empty() ? Kind::none : kind_of_name(words[0]);
        const bool sized = group.kind == Kind::by_value;
        group.size = traits(group.kind).size;
        group.align = traits(group.kind).align;
        if (group.kind == Kind::none || words.size() != (sized ? 3U : 1U) ||
            (sized &&
             (!read_number(words[1], group.size) || !read_number(words[2], group.align)))) {
            faults.add(place, "kind-group",
                       "'" + text + "' is no kind; write [kind] or [by-value SIZE ALIGN]");
            group = {};
        }
    });
}

void read_constants(const std::string &file, const std::string &source, Model &model,
                    Faults &faults) {
    for_each_row(file, source, faults, [&](const Place &place, const Columns &columns) {
        InstallRow row;
        row.place = place;
        if (columns[0] == "@cvar") {
            row.what = InstallRow::What::cvar;
        } else if (columns[0].rfind("@link ", 0) == 0) {
            row.what = InstallRow::What::link;
            row.name = columns[0].substr(6);
        } else {
            row.name = columns[0];
            if (!has_columns(place, columns, 2, faults)) return;
            if (!read_number(columns[1], row.value) || row.value < INT32_MIN ||
                row.value > INT32_MAX) {
                faults.add(place, "constant-value",
                           "'" + columns[1] + "' is no 32-bit decimal number");
                return;
            }
        }
        model.install.push_back(std::move(row));
    });
}

void read_variables(const std::string &file, const std::string &source, Model &model,
                    Faults &faults) {
    for_each_row(file, source, faults, [&](const Place &place, const Columns &columns) {
        if (has_columns(place, columns, 5, faults)) {
            model.variables.push_back(
                {columns[0], columns[1], columns[2], columns[3], columns[4], place, 0});
        }
    });
}

void read_helpers(const std::string &file, const std::string &source, Model &model,
                  Faults &faults) {
    for_each_row(file, source, faults, [&](const Place &place, const Columns &columns) {
        if (!has_columns(place, columns, 3, faults)) return;
        if (columns[0] != "box" && columns[0] != "array") {
            faults.add(place, "helper", "'" + columns[0] + "' is no helper; write box or array");
            return;
        }
        Helper helper{Helper::Form::box, columns[1], columns[2], place, {}};
        if (columns[0] == "array") helper.form = Helper::Form::array;
        model.helpers.push_back(std::move(helper));
    });
}

void read_departures(const std::string &file, const std::string &source, Model &model,
                     Faults &faults) {
    for_each_row(file, source, faults, [&](const Place &place, const Columns &columns) {
        if (has_columns(place, columns, 3, faults)) {
            const std::string reason = columns.size() > 3 ? columns[3] : "";
            model.departures.push_back({columns[0], columns[1], columns[2], reason, place, false});
        }
    });
}

void read_standin(const std::string &file, const std::string &source, Model &model,
                  Faults &faults) {
    for_each_row(file, source, faults, [&](const Place &place, const Columns &columns) {
        if (has_columns(place, columns, 4, faults))
            model.standin.push_back({columns[0], columns[1], columns[2], columns[3], place});
    });
}

}  // namespace generator
