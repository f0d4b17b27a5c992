#include "nombreDeModulo.hpp"

#include "norvik/base/texto.hpp"
#include "norvik/report/identificadorCpp.hpp"

namespace norvik::orden {

// A module in C++ is a namespace of its name.
bool esNombreDeModulo(std::u16string_view nombre, LenguajeModulo lenguaje) {
    const bool reservada = lenguaje == LenguajeModulo::Cpp && esPalabraDeCpp(nombre);
    return esIdentificador(nombre) && !reservada;
}

} // namespace norvik::orden
