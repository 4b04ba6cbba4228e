// Rows as text: widths, cuts, lines by a template, and the road to whoever catches them.
#include "standin/base/rows.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "standin/base/scan.h"

namespace standin {
namespace {

thread_local RowCatcher *innermost = nullptr;

constexpr std::size_t kGap = 2;
constexpr std::size_t kLeast = 6;  // a cut column keeps so many signs

struct Sign {
    std::uint32_t code = 0;
    std::size_t bytes = 0;  // 0: no UTF-8
};

Sign sign_at(std::string_view text) {
    const auto first = static_cast<unsigned char>(text.front());
    if (first < 0x80) return {first, 1};
    const std::size_t bytes = first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : first >= 0xc0 ? 2 : 0;
    if (bytes == 0 || first > 0xf4 || text.size() < bytes) return {};
    std::uint32_t code = first & (0xffU >> (bytes + 1));
    for (std::size_t at = 1; at < bytes; ++at) {
        const auto next = static_cast<unsigned char>(text[at]);
        if ((next & 0xc0U) != 0x80) return {};
        code = code << 6 | (next & 0x3fU);
    }
    constexpr std::array kSmallest = {0U, 0U, 0x80U, 0x800U, 0x10000U};
    const bool good =
        code >= kSmallest[bytes] && code <= 0x10ffff && (code < 0xd800 || code > 0xdfff);
    return good ? Sign{code, bytes} : Sign{};
}

bool moves_the_cursor(std::uint32_t code) {
    return code < ' ' || (code >= 0x7f && code < 0xa0) || code == 0x2028 || code == 0x2029 ||
           (code >= 0x202a && code <= 0x202e) || (code >= 0x2066 && code <= 0x2069);
}

std::size_t width_of(std::uint32_t code) {
    struct Range {
        std::uint32_t first, last;
    };
    constexpr std::array kNone = {Range{0x300, 0x36f}, Range{0x200b, 0x200f}, Range{0xfe00, 0xfe0f},
                                  Range{0x20d0, 0x20ff}};
    constexpr std::array kWide = {
        Range{0x1100, 0x115f}, Range{0x2e80, 0xa4cf},   Range{0xac00, 0xd7a3},
        Range{0xf900, 0xfaff}, Range{0xfe30, 0xfe6f},   Range{0xff00, 0xff60},
        Range{0xffe0, 0xffe6}, Range{0x1f300, 0x1faff}, Range{0x20000, 0x3fffd}};
    const auto in = [code](const Range &one) { return code >= one.first && code <= one.last; };
    if (std::any_of(kNone.begin(), kNone.end(), in)) return 0;
    return std::any_of(kWide.begin(), kWide.end(), in) ? 2 : 1;
}

std::string fitting(std::string_view text, std::size_t width) {
    if (text_width(text) <= width) return std::string(text);
    std::string cut;
    std::size_t used = 3;
    while (!text.empty()) {
        const Sign sign = sign_at(text);
        used += width_of(sign.code);
        if (used > width) break;
        cut += text.substr(0, sign.bytes);
        text.remove_prefix(sign.bytes);
    }
    return cut + "...";
}

// Takes room off the widest column until a line fits, or every column is down to the least.
void shrink(std::vector<std::size_t> &widths, std::size_t room) {
    const auto total = [&] {
        return std::accumulate(widths.begin(), widths.end(), (widths.size() - 1) * kGap);
    };
    while (!widths.empty() && total() > room) {
        auto widest = std::max_element(widths.begin(), widths.end());
        if (*widest <= kLeast) return;
        --*widest;
    }
}

std::string join(const std::vector<std::string> &cells, const std::vector<std::size_t> &widths,
                 const std::vector<bool> &right) {
    std::string line;
    for (std::size_t at = 0; at < cells.size(); ++at) {
        const std::string cell = fitting(cells[at], widths[at]);
        const std::string fill(widths[at] - std::min(widths[at], text_width(cell)), ' ');
        line += at == 0 ? "" : std::string(kGap, ' ');
        line += right[at] ? fill + cell : cell + fill;
    }
    return line.erase(line.find_last_not_of(' ') + 1);
}

}  // namespace

std::size_t text_width(std::string_view text) {
    std::size_t width = 0;
    while (!text.empty()) {
        const Sign sign = sign_at(text);
        width += sign.bytes == 0 ? 1 : width_of(sign.code);
        text.remove_prefix(std::max<std::size_t>(sign.bytes, 1));
    }
    return width;
}

std::string escaped(std::string_view text) {
    std::string shown;
    while (!text.empty()) {
        const Sign sign = sign_at(text);
        const std::size_t bytes = std::max<std::size_t>(sign.bytes, 1);
        if (sign.bytes == 0 || moves_the_cursor(sign.code))
            for (char byte : text.substr(0, bytes))
                shown +=
                    text_of("\\x%02x", static_cast<unsigned>(static_cast<unsigned char>(byte)));
        else
            shown += text.substr(0, bytes);
        text.remove_prefix(bytes);
    }
    return shown;
}

std::string Cell::text() const {
    struct Writer {
        std::string operator()(std::monostate) const { return "-"; }
        std::string operator()(bool truth) const { return truth ? "yes" : "no"; }
        std::string operator()(std::int64_t number) const { return std::to_string(number); }
        std::string operator()(std::uint64_t number) const { return std::to_string(number); }
        std::string operator()(const std::string &text) const { return text; }
        std::string operator()(const Numbers &numbers) const {
            std::string text;
            for (std::int64_t number : numbers)
                text += (text.empty() ? "" : ",") + std::to_string(number);
            return text.empty() ? "none" : text;
        }
    };
    return escaped(words_.empty() ? std::visit(Writer{}, value_) : words_);
}

Rows::Rows(std::span<const RowColumn> columns, const char *line) : columns_(columns), line_(line) {}

void Rows::row(std::vector<Cell> cells) { rows_.push_back(std::move(cells)); }

bool Rows::choose(std::span<const std::string> keys) {
    std::vector<std::size_t> wanted;
    for (const std::string &key : keys) {
        const auto found =
            std::find_if(columns_.begin(), columns_.end(),
                         [&](const RowColumn &one) { return same_word(one.key, key); });
        if (found == columns_.end()) return false;
        wanted.push_back(static_cast<std::size_t>(found - columns_.begin()));
    }
    chosen_ = wanted;
    line_ = nullptr;
    return true;
}

bool Rows::sort(std::string_view key, bool downwards) {
    const auto found = std::find_if(columns_.begin(), columns_.end(),
                                    [&](const RowColumn &one) { return same_word(one.key, key); });
    if (found == columns_.end()) return false;
    const auto at = static_cast<std::size_t>(found - columns_.begin());
    std::stable_sort(rows_.begin(), rows_.end(), [&](const auto &left, const auto &right) {
        return downwards ? right[at].value() < left[at].value()
                         : left[at].value() < right[at].value();
    });
    return true;
}

void Rows::keep(const std::function<bool(std::string_view)> &wanted) {
    std::erase_if(rows_, [&](const std::vector<Cell> &cells) { return !wanted(line_of(cells)); });
    drop_sentences();
}

void Rows::append(const Rows &more) {
    rows_.insert(rows_.end(), more.rows_.begin(), more.rows_.end());
    drop_sentences();
}

void Rows::drop_sentences() {
    before_.clear();
    notes_.clear();
    instead_.clear();
}

std::vector<std::size_t> Rows::shown() const {
    if (!chosen_.empty()) return chosen_;
    std::vector<std::size_t> all;
    for (std::size_t at = 0; at < columns_.size(); ++at)
        if (columns_[at].heading != nullptr) all.push_back(at);
    return all;
}

std::string Rows::line_of(const std::vector<Cell> &cells) const {
    std::string line;
    if (line_ == nullptr) {
        for (std::size_t at : shown()) line += (line.empty() ? "" : "  ") + cells[at].text();
        return line;
    }
    for (std::string_view rest = line_; !rest.empty();) {
        const std::size_t open = rest.find('{');
        line += rest.substr(0, open);
        if (open == std::string_view::npos) break;
        const std::size_t close = rest.find('}', open);
        const std::string_view key = rest.substr(open + 1, close - open - 1);
        for (std::size_t at = 0; at < columns_.size(); ++at)
            if (key == columns_[at].key) line += cells[at].text();
        rest.remove_prefix(close + 1);
    }
    return line;
}

std::string Rows::text(int width, bool bold) const {
    std::string text;
    for (const std::string &sentence : before_) text += sentence + '\n';
    if (rows_.empty() && !instead_.empty()) return text + instead_ + '\n';
    if (line_ != nullptr) {
        for (const auto &cells : rows_) text += line_of(cells) + '\n';
    } else {
        std::vector<std::vector<std::string>> lines(2);
        std::vector<std::size_t> widths;
        std::vector<bool> right;
        for (const auto &cells : rows_) {
            lines.emplace_back();
            for (std::size_t at : shown()) lines.back().push_back(cells[at].text());
        }
        for (std::size_t at : shown()) {
            const RowColumn &column = columns_[at];
            std::string heading = column.heading == nullptr ? column.key : column.heading;
            right.push_back(column.heading != nullptr ? heading.starts_with('>')
                                                      : column.kind == CellKind::kNumber);
            if (heading.starts_with('>')) heading.erase(0, 1);
            std::size_t wide = text_width(heading);
            for (std::size_t line = 2; line < lines.size(); ++line)
                wide = std::max(wide, text_width(lines[line][widths.size()]));
            widths.push_back(wide);
            lines[0].push_back(heading);
        }
        if (width > 0) shrink(widths, static_cast<std::size_t>(width));
        for (std::size_t wide : widths) lines[1].emplace_back(wide, '-');
        for (std::size_t at = 0; at < lines.size(); ++at) {
            // More columns than the window has room for: their end is cut off.
            std::string line = join(lines[at], widths, right);
            if (width > 0) line = fitting(line, static_cast<std::size_t>(width));
            text += bold && at == 0 ? "\x1b[1m" + line + "\x1b[0m\n" : line + '\n';
        }
    }
    for (const std::string &sentence : notes_) text += sentence + '\n';
    return text;
}

void Rows::show() const {
    if (innermost == nullptr || !innermost->capture_.innermost()) {
        const Screen &screen = out_screen();
        out(text(screen.width, screen.colours));
        return;
    }
    innermost->take_text();
    innermost->items_.emplace_back(*this);
}

RowCatcher::RowCatcher() : outer_(innermost) { innermost = this; }

RowCatcher::~RowCatcher() { innermost = outer_; }

void RowCatcher::take_text() {
    std::string text = capture_.drain();
    if (!text.empty()) items_.emplace_back(std::move(text));
}

std::vector<RowCatcher::Item> RowCatcher::take() {
    take_text();
    return std::move(items_);
}

}  // namespace standin
