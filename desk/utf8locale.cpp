#include "utf8locale.h"

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <langinfo.h>
#include <string>

namespace {

const char *const utf8 = "C.UTF-8";

/// LC_ALL goes before LC_CTYPE; what it says of everything else is kept under the name that comes last.
void replaceAllByLanguage()
{
    const char *all = std::getenv("LC_ALL");
    if (!all || !*all)
        return;
    setenv("LANG", std::string(all).c_str(), 1);
    for (const char *name : {"LC_ALL", "LC_NUMERIC", "LC_TIME", "LC_COLLATE", "LC_MONETARY", "LC_MESSAGES", "LC_PAPER",
                             "LC_NAME", "LC_ADDRESS", "LC_TELEPHONE", "LC_MEASUREMENT", "LC_IDENTIFICATION"})
        unsetenv(name);
}

} // namespace

void useUtf8()
{
    if (!std::setlocale(LC_ALL, "")) {
        // Not installed: nobody can set it, so what stands here stays.
        std::setlocale(LC_CTYPE, utf8);
        return;
    }
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0)
        return;
    replaceAllByLanguage();
    setenv("LC_CTYPE", utf8, 1); // where Qt looks
}
