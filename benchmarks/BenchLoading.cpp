// What a host's start pays for each library of this repository.

#include "Compare.h"

#include <QtGlobal>

#include <algorithm>
#include <dlfcn.h>
#include <link.h>
#include <memory>
#include <string>
#include <vector>

using namespace Bench;

namespace {

/// One library that is loaded and unloaded, while all that it needs stays loaded.
class Library
{
public:
    explicit Library(const char* file)
        : m_file(file)
    {
        load();
        std::vector<std::string> needed;
        link_map* map = nullptr;
        dlinfo(m_handle, RTLD_DI_LINKMAP, static_cast<void*>(&map));
        const std::string own = map->l_name;
        while (map->l_prev) {
            map = map->l_prev;
        }
        for (; map; map = map->l_next) {
            if (map->l_name != own && map->l_name[0] != '\0') {
                needed.emplace_back(map->l_name);
            }
        }
        for (const std::string& name : needed) {
            // The kernel's own object has a name and no file.
            if (void* const handle = dlopen(name.c_str(), RTLD_LAZY | RTLD_NOLOAD)) {
                m_needed.push_back(handle);
            }
        }
        unload();
    }

    ~Library() { std::for_each(m_needed.rbegin(), m_needed.rend(), dlclose); }

    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    void load()
    {
        m_handle = dlopen(m_file, RTLD_NOW);
        if (!m_handle) {
            qFatal("%s", dlerror());
        }
    }

    void unload()
    {
        dlclose(m_handle);
        m_handle = nullptr;
        if (dlopen(m_file, RTLD_LAZY | RTLD_NOLOAD)) {
            qFatal("%s stays loaded: the row would time nothing", m_file);
        }
    }

private:
    const char* const m_file;
    void* m_handle = nullptr;
    std::vector<void*> m_needed;
};

Side loading(const char* file)
{
    const auto library = std::make_shared<Library>(file);
    return {[library] { library->load(); }, [] {}, [library] { library->unload(); }};
}

Pair loadings(const char* ours, const char* reference)
{
    return {loading(ours), loading(reference)};
}

// The rows: one for each library of the build, see CMakeLists.txt.
#include "LoadingRows.inc"

} // namespace
