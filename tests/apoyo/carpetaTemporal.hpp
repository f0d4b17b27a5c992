// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace norvik::apoyo {

/// An empty folder that disappears with its owner.
class CarpetaTemporal {
public:
    CarpetaTemporal();
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;
    ~CarpetaTemporal();

    const std::filesystem::path& ruta() const { return ruta_; }
    std::filesystem::path operator/(std::string_view nombre) const { return ruta_ / nombre; }
    /// Writes a file of the folder and gives its path.
    std::filesystem::path pon(std::string_view nombre, std::string_view bytes) const;
    /// How many entries the folder has.
    std::size_t entradas() const;

private:
    std::filesystem::path ruta_;
};

std::string bytesDe(const std::filesystem::path& fichero);

} // namespace norvik::apoyo
