// Rows as JSON.
#include <nlohmann/json.hpp>

#include "standin/shell/pipe.h"

namespace standin {
namespace {

using Json = nlohmann::ordered_json;

Json json_of(const Cell::Value &value) {
    struct Writer {
        Json operator()(std::monostate) const { return nullptr; }
        Json operator()(bool truth) const { return truth; }
        Json operator()(std::int64_t number) const { return number; }
        Json operator()(std::uint64_t number) const { return number; }
        Json operator()(const std::string &text) const { return text; }
        Json operator()(const Cell::Numbers &numbers) const { return numbers; }
    };
    return std::visit(Writer{}, value);
}

}  // namespace

std::string json_text(const Rows &rows) {
    std::string text = "[";
    for (const std::vector<Cell> &cells : rows.rows()) {
        Json one = Json::object();
        std::vector<std::size_t> wanted = rows.chosen();
        for (std::size_t at = 0; rows.chosen().empty() && at < cells.size(); ++at)
            wanted.push_back(at);
        for (std::size_t at : wanted) one[rows.columns()[at].key] = json_of(cells[at].value());
        text += text.size() == 1 ? "\n " : ",\n ";
        // Bytes that are no UTF-8 stand as U+FFFD: a reader of JSON takes no others.
        text += one.dump(-1, ' ', true, Json::error_handler_t::replace);
    }
    return text + (text.size() == 1 ? "]\n" : "\n]\n");
}

}  // namespace standin
