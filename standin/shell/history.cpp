// Reading, cutting and adding to the file of lines.
#include "standin/shell/history.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdlib>

#include "standin/base/config_file.h"
#include "standin/base/config_store.h"
#include "standin/base/scan.h"

namespace standin {
namespace {

std::string file_of_person() {
    if (const auto set = config_get("diag_shell_history_file")) return *set;
    const std::string_view home = view_of(std::getenv("HOME"));
    return home.empty() ? std::string() : std::string(home) + "/.ombra_history";
}

std::string joined(const std::vector<std::string> &lines) {
    std::string text;
    for (const std::string &line : lines) text += line + '\n';
    return text;
}

}  // namespace

LineHistory::LineHistory()
    : file_(file_of_person()), most_(property_number("diag_shell_history", 0, -1, 200)) {
    std::string text;
    if (file_.empty() || !read_file(file_, text)) return;
    for (std::string_view line : split(text, "\n"))
        if (!line.empty()) lines_.emplace_back(line);
    const bool long_file = lines_.size() > 2 * most_;
    if (lines_.size() > most_)
        lines_.erase(lines_.begin(), lines_.end() - static_cast<std::ptrdiff_t>(most_));
    if (long_file) write_file(file_, {}, joined(lines_));
}

bool LineHistory::add(const std::string &line) {
    if (trim(line).empty() || is_blank(line.front())) return false;
    if (!lines_.empty() && lines_.back() == line) return false;
    lines_.push_back(line);
    if (file_.empty()) return true;
    // Private: lines may hold what others should not read.
    const int fd =
        ::open(file_.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (fd < 0) return true;
    const std::string text = line + '\n';
    if (::write(fd, text.data(), text.size()) < 0) file_.clear();
    ::close(fd);
    return true;
}

std::optional<std::string> LineHistory::expand(const std::string &line) const {
    std::string made;
    bool quoted = false;
    bool found = false;
    for (std::size_t at = 0; at < line.size(); ++at) {
        if (line[at] == '\'') quoted = !quoted;
        if (quoted || line.compare(at, 2, "!!") != 0) {
            made += line[at];
            if (line[at] == '\\' && at + 1 < line.size()) made += line[++at];
            continue;
        }
        found = true;
        if (lines_.empty()) return std::string();
        made += lines_.back();
        ++at;
    }
    return found ? std::optional(made) : std::nullopt;
}

}  // namespace standin
