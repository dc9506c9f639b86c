/// \file
/// A home folder of their own for tests, so that they neither read nor change the user's settings. And English,
/// whatever the machine's language and regional formats.
#ifndef VELBRIN_TESTS_TESTHOME_H
#define VELBRIN_TESTS_TESTHOME_H

#include <cstdlib>
#include <filesystem>

/// Made at construction, removed at destruction. HOME, XDG_CONFIG_HOME and XDG_RUNTIME_DIR point at it.
class TestHome
{
public:
    TestHome()
    {
        setenv("LC_ALL", "C.UTF-8", 1);
        unsetenv("LANGUAGE");
        char name[] = "/tmp/velbrin-test-XXXXXX";
        if (const char *made = mkdtemp(name))
            m_folder = made;
        setenv("HOME", m_folder.c_str(), 1);
        setenv("XDG_CONFIG_HOME", m_folder.c_str(), 1);
        setenv("XDG_RUNTIME_DIR", m_folder.c_str(), 1); // Qt remarks on its absence otherwise
    }
    ~TestHome()
    {
        std::error_code ignored;
        std::filesystem::current_path("/", ignored);
        std::filesystem::remove_all(m_folder, ignored);
    }

private:
    std::filesystem::path m_folder;
};

#endif
