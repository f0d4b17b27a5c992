// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/descriptor.hpp"

#include <filesystem>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace norvik::inline v0_2 {

/// Files that stand beside another one while it is being written, and what is left of them when their process
/// was killed.
class NombresProvisionales {
public:
    /// Their names are the beginning, a number and the end.
    NombresProvisionales(std::filesystem::path carpeta, std::string_view principio, std::string_view final);

    /// One of them, open for writing alone if it is new.
    struct Fichero {
        std::filesystem::path nombre;
        Descriptor descriptor; ///< not open, with the cause in errno, when there is none
    };
    Fichero crea(mode_t modo) const;
    /// Those whose process is no more, open and locked.
    std::vector<Fichero> abandonados() const;
    /// Removes the first of them, in a few calls.
    void quitaAbandonados() const;

private:
    std::vector<Fichero> abandonados(int cuantos) const;
    std::filesystem::path nombre(int numero) const;

    std::filesystem::path carpeta_;
    std::string principio_;
    std::string final_;
};

} // namespace norvik::inline v0_2
