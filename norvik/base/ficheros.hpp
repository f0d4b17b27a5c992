// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

class Descriptor;

/// Un fichero mayor se rechaza: ningún texto de ese tamaño se puede editar, y uno sin fin no debe llenar la
/// memoria.
inline constexpr std::size_t maximoDeFichero = std::size_t{64} << 20;

/// Los bytes de un fichero entero; lanza `ErrorDeFichero` (no existe, es una carpeta, no se puede leer, es
/// demasiado grande…).
NORVIK_API std::string leeBytes(const std::filesystem::path& fichero);
/// Lo mismo de la entrada estándar, desde donde está hasta su final.
NORVIK_API std::string leeEntradaEstandar();
/// Un texto como lo carga el editor: descodificado y con todas sus líneas acabadas en CR LF, menos la última,
/// que pierde su final. Lanza `ErrorDeFichero`.
NORVIK_API std::u16string leeTexto(const std::filesystem::path& fichero);

/// Da un texto trozo a trozo, sin partir ningún carácter; nada cuando se ha acabado.
using OrigenDeTexto = std::function<std::u16string()>;

/// El texto de un fichero por trozos, descodificado como hace `leeTexto` pero con sus finales de línea, para
/// el que sea demasiado largo para tenerlo entero. El fichero se lee antes para saber su codificación, hasta
/// el primer byte que impide que sea UTF-8. Ambas operaciones lanzan `ErrorDeFichero`.
class NORVIK_API TextoPorTrozos {
public:
    explicit TextoPorTrozos(const std::filesystem::path& fichero);
    TextoPorTrozos(const TextoPorTrozos&) = delete;
    TextoPorTrozos& operator=(const TextoPorTrozos&) = delete;
    ~TextoPorTrozos();
    std::u16string siguiente();

private:
    std::string bytes();

    std::u16string nombre_; ///< para los mensajes
    const std::unique_ptr<Descriptor> descriptor_;
    std::string resto_;      ///< bytes leídos y no dados aún
    std::size_t leidos_ = 0; ///< bytes dados
    bool esUtf8_ = true;
    bool primero_ = true;
    std::u16string entero_; ///< lo que solo se pudo leer una vez
};

enum class Durabilidad : int { Normal, EnDisco };
/// Escribe un fichero entero al lado de su sitio y le da después su nombre: un fallo en cualquier paso
/// (`ErrorDeFichero`) deja el antiguo. Se conservan los permisos, el grupo,
/// las listas de acceso y los atributos, y se sigue un enlace; si el fichero tiene otros nombres o su carpeta
/// no admite uno nuevo, se escribe donde está, con una copia de lo que tenía hasta que acaba; `EnDisco`
/// vuelca fichero y carpeta al disco. Lo que no es un fichero corriente (un dispositivo, una tubería) no
/// tiene sitio al lado y se escribe directamente. Un texto se escribe en Windows-1252 cuando así se vuelve a
/// leer el mismo texto, y si no en UTF-8 con marca.
NORVIK_API void escribeBytes(const std::filesystem::path& fichero, std::string_view bytes,
                             Durabilidad durabilidad);
NORVIK_API void escribeTexto(const std::filesystem::path& fichero, std::u16string_view texto,
                             Durabilidad durabilidad);

/// Recibe un texto trozo a trozo.
using SumideroDeTexto = std::function<void(std::u16string_view pieza)>;
/// Da un texto en trozos de líneas enteras, el mismo cada vez que se le pide.
using TextoPorPiezas = std::function<void(const SumideroDeTexto& sumidero)>;
/// El texto de una pieza.
NORVIK_API std::u16string deUnaPieza(const TextoPorPiezas& piezas);
/// Escribe un texto demasiado largo para tenerlo entero.
NORVIK_API void escribeTexto(const std::filesystem::path& fichero, const TextoPorPiezas& piezas,
                             Durabilidad durabilidad);

} // namespace norvik::inline v0_2
