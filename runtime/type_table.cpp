// Searches by name and cast lists that move a hit to their front.
#include "runtime/type_table.h"

#include <cstring>
#include <string_view>

#include "runtime/module_list.h"
#include "runtime/py_ref.h"

swig_cast_link *SWIG_TypeCheck(const char *name, swig_type_info *type) {
    if (type == nullptr) return nullptr;
    swig_cast_link *link = type->casts;
    while (link != nullptr && std::strcmp(link->type->name, name) != 0) link = link->next;
    if (link == nullptr || link == type->casts) return link;
    link->prev->next = link->next;
    if (link->next != nullptr) link->next->prev = link->prev;
    link->prev = nullptr;
    link->next = type->casts;
    type->casts->prev = link;
    type->casts = link;
    return link;
}

namespace {

swig_type_info *find_in_table(const swig_module_table &table, const char *name) {
    if (table.size == 0) return nullptr;
    std::uint64_t lower = 0;
    std::uint64_t upper = table.size - 1;
    while (lower <= upper) {
        const std::uint64_t probe = (lower + upper) >> 1U;
        swig_type_info *type = table.types[probe];
        if (type->name == nullptr) return nullptr;
        const int order = std::strcmp(name, type->name);
        if (order == 0) return type;
        if (order > 0)
            lower = probe + 1;
        else if (probe > 0)
            upper = probe - 1;
        else
            return nullptr;  // probe - 1 would wrap
    }
    return nullptr;
}

bool equal_without_blanks(std::string_view left, std::string_view right) {
    const auto skip_blanks = [](std::string_view &text) {
        while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    };
    for (;;) {
        skip_blanks(left);
        skip_blanks(right);
        if (left.empty() || right.empty()) return left.empty() && right.empty();
        if (left.front() != right.front()) return false;
        left.remove_prefix(1);
        right.remove_prefix(1);
    }
}

bool has_spelling(const swig_type_info &type, std::string_view key) {
    if (type.pretty_names == nullptr) return false;
    std::string_view names = type.pretty_names;
    for (;;) {
        const std::size_t bar = names.find('|');
        if (equal_without_blanks(names.substr(0, bar), key)) return true;
        if (bar == std::string_view::npos) return false;
        names.remove_prefix(bar + 1);
    }
}

swig_type_info *find_in_process(const char *key) {
    swig_module_table *head = SWIG_Python_GetModule();
    if (head == nullptr) return nullptr;
    swig_type_info *type = SWIG_MangledTypeQueryModule(head, head, key);
    return type != nullptr ? type : ombra::find_spelling(head, key);
}

}  // namespace

swig_type_info *SWIG_MangledTypeQueryModule(swig_module_table *start, swig_module_table *end,
                                            const char *name) {
    swig_module_table *table = start;
    do {
        if (swig_type_info *type = find_in_table(*table, name)) return type;
        table = table->next;
    } while (table != end);
    return nullptr;
}

swig_type_info *ombra::find_spelling(swig_module_table *head, const char *key) {
    swig_module_table *table = head;
    do {
        for (std::uint64_t index = 0; index < table->size; ++index)
            if (has_spelling(*table->types[index], key)) return table->types[index];
        table = table->next;
    } while (table != head);
    return nullptr;
}

swig_type_info *SWIG_Python_TypeQuery(const char *key) {
    static PyObject *const cache = PyDict_New();
    const ombra::PyRef name(PyString_FromString(key));
    if (cache == nullptr || name == nullptr) {
        PyErr_Clear();
        return find_in_process(key);
    }
    if (PyObject *hit = PyDict_GetItem(cache, name.get()))
        return static_cast<swig_type_info *>(PyCapsule_GetPointer(hit, nullptr));
    swig_type_info *type = find_in_process(key);
    if (type != nullptr) {
        const ombra::PyRef capsule(PyCapsule_New(type, nullptr, nullptr));
        if (capsule == nullptr || PyDict_SetItem(cache, name.get(), capsule.get()) != 0)
            PyErr_Clear();
    }
    return type;
}

swig_type_info *SWIG_pchar_descriptor() {
    static bool done = false;
    static swig_type_info *descriptor = nullptr;
    if (!done) {
        descriptor = SWIG_Python_TypeQuery("_p_char");
        done = true;
    }
    return descriptor;
}

void SWIG_TypeClientData(swig_type_info *type, SwigPyClientData *data) {
    type->client_data = data;
    for (swig_cast_link *link = type->casts; link != nullptr; link = link->next)
        if (link->converter == nullptr && link->type->client_data == nullptr)
            SWIG_TypeClientData(link->type, data);
}

const char *SWIG_TypeDisplayName(const swig_type_info *type) {
    if (type == nullptr) return nullptr;
    if (type->pretty_names == nullptr) return type->name;
    const char *bar = std::strrchr(type->pretty_names, '|');
    return bar != nullptr ? bar + 1 : type->pretty_names;
}
