// Finds out whose pipe a descriptor is, and waits for room in it.
#include "standin/base/descriptor.h"

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>

namespace standin {
namespace {

constexpr int kPatience = 100;  // milliseconds

bool takes_more(int fd, int milliseconds) {
    pollfd one{fd, POLLOUT, 0};
    int ready = ::poll(&one, 1, milliseconds);
    return ready > 0 || (ready < 0 && errno != EINTR);
}

bool is_reader(int fd, const struct stat &pipe) {
    struct stat other {};
    if (::fstat(fd, &other) != 0 || other.st_ino != pipe.st_ino || other.st_dev != pipe.st_dev)
        return false;
    return (::fcntl(fd, F_GETFL) & O_ACCMODE) != O_WRONLY;
}

// Whether this process has the reading end of the pipe open.
bool reads_it_itself(int fd) {
    struct stat pipe {};
    if (::fstat(fd, &pipe) != 0 || !S_ISFIFO(pipe.st_mode)) return false;
    DIR *open_files = ::opendir("/proc/self/fd");
    if (open_files == nullptr) return false;
    bool found = false;
    while (const dirent *entry = ::readdir(open_files))
        found = found || is_reader(std::atoi(entry->d_name), pipe);
    ::closedir(open_files);
    return found;
}

}  // namespace

bool wait_writable(int fd) {
    while (!takes_more(fd, 0)) {
        if (takes_more(fd, kPatience)) return true;
        if (reads_it_itself(fd)) return false;
    }
    return true;
}

}  // namespace standin
