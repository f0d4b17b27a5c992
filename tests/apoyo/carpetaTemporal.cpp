// SPDX-License-Identifier: MIT

#include "apoyo/carpetaTemporal.hpp"

#include <cstdlib>
#include <stdexcept>

namespace norvik::apoyo {

namespace fs = std::filesystem;

CarpetaTemporal::CarpetaTemporal() {
    std::string plantilla = fs::temp_directory_path() / "norvik-XXXXXX";
    if (mkdtemp(plantilla.data()) == nullptr) throw std::runtime_error("mkdtemp");
    ruta_ = plantilla;
}

CarpetaTemporal::~CarpetaTemporal() {
    std::error_code error;
    fs::remove_all(ruta_, error);
}

fs::path CarpetaTemporal::pon(std::string_view nombre, std::string_view bytes) const {
    std::ofstream(ruta_ / nombre, std::ios::binary) << bytes;
    return ruta_ / nombre;
}

std::size_t CarpetaTemporal::entradas() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(ruta_), fs::directory_iterator()));
}

std::string bytesDe(const fs::path& fichero) {
    std::ifstream entrada(fichero, std::ios::binary);
    return {std::istreambuf_iterator<char>(entrada), {}};
}

} // namespace norvik::apoyo
