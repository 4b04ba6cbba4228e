// Prints the page of the shell: what is written by hand, then the commands from their declarations.
#include <cstdio>

#include "standin/base/config_file.h"
#include "standin/shell/manual.h"

int main(int count, char **words) {
    std::string page;
    if (count != 2 || !standin::read_file(words[1], page)) {
        std::fputs("usage: shell_manual PAGE\n", stderr);
        return 1;
    }
    page += '\n' + standin::manual_text();
    return std::fwrite(page.data(), 1, page.size(), stdout) == page.size() ? 0 : 1;
}
