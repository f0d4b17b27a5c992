#pragma once

// The PCRE2 library with its objects owned; included by the matcher's sources alone.
#define PCRE2_CODE_UNIT_WIDTH 16
#include <pcre2.h>

#include <memory>
#include <string_view>

namespace norvik {

struct LiberaPcre {
    void operator()(pcre2_code_16* codigo) const { pcre2_code_free_16(codigo); }
    void operator()(pcre2_match_data_16* datos) const { pcre2_match_data_free_16(datos); }
    void operator()(pcre2_match_context_16* contexto) const { pcre2_match_context_free_16(contexto); }
    void operator()(pcre2_jit_stack_16* pila) const { pcre2_jit_stack_free_16(pila); }
};
using CodigoPcre = std::unique_ptr<pcre2_code_16, LiberaPcre>;
using DatosPcre = std::unique_ptr<pcre2_match_data_16, LiberaPcre>;
using ContextoPcre = std::unique_ptr<pcre2_match_context_16, LiberaPcre>;
using PilaPcre = std::unique_ptr<pcre2_jit_stack_16, LiberaPcre>;

/// The library's type has the size and values of ours but is another one.
inline PCRE2_SPTR16 unidadesPcre(std::u16string_view texto) {
    return reinterpret_cast<PCRE2_SPTR16>(
        texto.data()); // NOLINT(cppcoreguidelines-pro-type-reinterpret-cast)
}

/// Null when the library refuses the pattern.
inline CodigoPcre compilaPcre(std::u16string_view patron, std::uint32_t opciones) {
    int error = 0;
    PCRE2_SIZE donde = 0;
    return CodigoPcre(
        pcre2_compile_16(unidadesPcre(patron), patron.size(), opciones, &error, &donde, nullptr));
}

} // namespace norvik
