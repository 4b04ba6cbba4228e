// Reading and writing the lines of configuration files.
#include "standin/base/config_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <optional>

#include "standin/base/scan.h"

namespace standin {

namespace {

constexpr std::string_view kNameSigns = "_.-/:{}[]*";
constexpr std::string_view kBlanks = " \t\r\v\f";

// The logical line that starts at `rest`, continuations joined; `rest` and `line` move behind it.
std::string take_logical_line(std::string_view &rest, int &line) {
    std::string joined;
    while (true) {
        std::size_t end = rest.find('\n');
        std::string_view piece = rest.substr(0, end);
        rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
        ++line;
        if (!piece.empty() && piece.back() == '\r') piece.remove_suffix(1);
        if (!joined.empty()) piece = trim_left(piece);
        bool more = !piece.empty() && piece.back() == '\\' && !rest.empty();
        if (more) piece.remove_suffix(1);
        joined += piece;
        if (!more) return joined;
        if (joined.empty()) joined = " ";  // so that the next piece counts as a continuation
    }
}

// Reads what follows a backslash in quotes; `at` stands behind the backslash and moves on.
std::optional<char> read_escape(std::string_view text, std::size_t &at) {
    if (at >= text.size()) return std::nullopt;
    char sign = text[at++];
    switch (sign) {
        case 'n':
            return '\n';
        case 'r':
            return '\r';
        case 't':
            return '\t';
        case '"':
        case '\\':
            return sign;
        case 'x':
            break;
        default:
            return std::nullopt;
    }
    if (at + 2 > text.size()) return std::nullopt;
    int high = hex_digit(text[at]);
    int low = hex_digit(text[at + 1]);
    if (high < 0 || low < 0 || (high == 0 && low == 0)) return std::nullopt;
    at += 2;
    return static_cast<char>(high * 16 + low);
}

// `text` begins with the opening quote. Empty with `fault` set when the rules are broken.
std::string read_quoted(std::string_view text, std::string &fault) {
    std::string value;
    std::size_t at = 1;
    while (at < text.size() && text[at] != '"') {
        if (text[at] != '\\') {
            value += text[at++];
            continue;
        }
        std::optional<char> sign = read_escape(text, ++at);
        if (!sign) {
            fault = "unknown escape in the quoted value";
            return {};
        }
        value += *sign;
    }
    if (at >= text.size()) {
        fault = "no closing quote";
        return {};
    }
    std::string_view tail = trim(text.substr(at + 1));
    if (!tail.empty() && tail.front() != '#') {
        fault = "text after the closing quote";
        return {};
    }
    return value;
}

std::string read_plain(std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        bool after_blank = at == 0 || kBlanks.find(text[at - 1]) != std::string_view::npos;
        if (text[at] == '#' && after_blank) {
            text = text.substr(0, at);
            break;
        }
    }
    return std::string(trim(text));
}

// Files the logical line under entries or faults.
void read_line(std::string_view text, int line, ConfigText &out) {
    text = trim(text);
    if (text.empty() || text.front() == '#') return;
    std::string fault;
    std::string value;
    std::size_t equals = text.find('=');
    std::string_view name = trim(text.substr(0, equals));
    if (text.find('\0') != std::string_view::npos) {
        fault = "a zero byte";
    } else if (equals == std::string_view::npos) {
        fault = "no '=' after the name";
    } else if (!config_name_ok(name)) {
        fault = "bad name '" + std::string(name) + "'";
    } else {
        std::string_view rest = trim(text.substr(equals + 1));
        bool quoted = !rest.empty() && rest.front() == '"';
        value = quoted ? read_quoted(rest, fault) : read_plain(rest);
    }
    if (fault.empty())
        out.entries.push_back({std::string(name), std::move(value), line});
    else
        out.faults.push_back({line, std::move(fault)});
}

bool plain_survives(std::string_view value) {
    if (value != trim(value)) return false;
    for (char sign : value)
        if (sign == '"' || sign == '#' || sign == '\\' || !is_printable(sign)) return false;
    return true;
}

std::string quoted(std::string_view value) {
    std::string out = "\"";
    for (char sign : value) {
        if (sign == '"' || sign == '\\') {
            out += '\\';
            out += sign;
        } else if (sign == '\n') {
            out += "\\n";
        } else if (is_printable(sign)) {
            out += sign;
        } else {
            std::array<char, 5> hex{};
            std::snprintf(hex.data(), hex.size(), "\\x%02x", static_cast<unsigned char>(sign));
            out += hex.data();
        }
    }
    return out + '"';
}

bool write_all(int fd, std::string_view text) {
    while (!text.empty()) {
        ssize_t done = ::write(fd, text.data(), text.size());
        if (done < 0 && errno == EINTR) continue;
        if (done < 0) return false;
        text.remove_prefix(static_cast<std::size_t>(done));
    }
    return true;
}

// "" for a name without a folder.
std::string folder_of(const std::string &path) {
    std::size_t end = path.rfind('/');
    return end == std::string::npos ? std::string() : path.substr(0, end + 1);
}

// The file that a chain of links leads to, whether it is there or not.
bool follow_links(const std::string &path, std::string &target) {
    constexpr int kMostLinks = 40;
    target = path;
    for (int links = 0; links < kMostLinks; ++links) {
        std::array<char, PATH_MAX> text;
        ssize_t length = ::readlink(target.c_str(), text.data(), text.size());
        if (length < 0) return true;
        std::string next(text.data(), static_cast<std::size_t>(length));
        target = next.starts_with('/') ? next : folder_of(target) + next;
    }
    errno = ELOOP;
    return false;
}

// What `path` leads to and the permissions that it has, or will have; false where that is neither
// a plain file nor nothing.
bool find_target(const std::string &path, std::string &target, mode_t &mode) {
    constexpr mode_t kNew = 0644;
    if (!follow_links(path, target)) return false;
    struct stat old {};
    if (::lstat(target.c_str(), &old) != 0) {
        mode = kNew;
        return errno == ENOENT;
    }
    mode = old.st_mode & 07777;
    if (S_ISREG(old.st_mode)) return true;
    errno = S_ISDIR(old.st_mode) ? EISDIR : EINVAL;
    return false;
}

// A file of our own by that name, or, for an empty one, by a name that is put into it. What has the
// name already is a leftover, or was laid there for us: it goes.
int make_temporary(const std::string &target, std::string &name) {
    if (name.empty()) {
        name = target + ".XXXXXX";
        return ::mkostemp(name.data(), O_CLOEXEC);
    }
    constexpr int kAnew = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    int fd = ::open(name.c_str(), kAnew, 0600);
    if (fd >= 0 || errno != EEXIST || ::unlink(name.c_str()) != 0) return fd;
    return ::open(name.c_str(), kAnew, 0600);
}

// Makes the new name last. The file is in its place already, so a failure is none.
void sync_folder(const std::string &target) {
    int fd = ::open((folder_of(target) + '.').c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

}  // namespace

bool config_name_ok(std::string_view name) {
    for (char sign : name)
        if (!is_alnum(sign) && kNameSigns.find(sign) == std::string_view::npos) return false;
    return !name.empty();
}

ConfigText parse_config_text(std::string_view text) {
    ConfigText out;
    int line = 0;
    while (!text.empty()) {
        int first = line + 1;
        // A comment is not continued: a backslash at its end would hide the setting below.
        std::string_view start = trim_left(text.substr(0, text.find('\n')));
        if (!start.empty() && start.front() == '#') {
            std::size_t end = text.find('\n');
            text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
            ++line;
            continue;
        }
        std::string logical = take_logical_line(text, line);
        read_line(logical, first, out);
    }
    return out;
}

std::string format_config_line(std::string_view name, std::string_view value) {
    std::string line(name);
    line += '=';
    line += plain_survives(value) ? std::string(value) : quoted(value);
    return line + '\n';
}

bool read_file(const std::string &path, std::string &text) {
    int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return false;
    std::array<char, 4096> block;
    ssize_t got = 0;
    text.clear();
    do {
        got = ::read(fd, block.data(), block.size());
        if (got > 0) text.append(block.data(), static_cast<std::size_t>(got));
    } while (got > 0 || (got < 0 && errno == EINTR));
    int error = errno;
    ::close(fd);
    errno = error;
    return got == 0;
}

bool replaceable(const std::string &path) {
    std::string target;
    mode_t mode = 0;
    return find_target(path, target, mode);
}

bool write_file(const std::string &path, const std::string &temporary, std::string_view text) {
    std::string target;
    mode_t mode = 0;
    if (!find_target(path, target, mode)) return false;
    std::string made = temporary;
    int fd = make_temporary(target, made);
    if (fd < 0) return false;
    bool ok = ::fchmod(fd, mode) == 0 && write_all(fd, text) && ::fsync(fd) == 0;
    ok = ::close(fd) == 0 && ok;
    ok = ok && std::rename(made.c_str(), target.c_str()) == 0;
    if (ok) {
        sync_folder(target);
        return true;
    }
    int error = errno;
    ::unlink(made.c_str());
    errno = error;
    return false;
}

}  // namespace standin
