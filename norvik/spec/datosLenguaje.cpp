// SPDX-License-Identifier: MIT

#include "norvik/spec/datosLenguaje.hpp"

#include "norvik/spec/cargadorLenguaje.hpp"

namespace norvik::inline v0_2 {

void CargaLenguaje(const DatosLenguaje& datos, CargadorLenguaje& control) {
    if (datos.distingueMayusculas) control.DistingueMayusculas();
    for (const auto& d : datos.definiciones)
        control.SetPatron(d.patron, d.nombre, d.tipo, d.pseudoToken, d.base, d.color);
    for (const auto& regla : datos.reglas) control.SetRegla(regla);
    control.SetDimensionTablaSLR(datos.filas, datos.columnas);
    for (const auto& [fila, columna, valor] :
         datos.celdas.subspan(control.SetElementosTablaSLR(datos.celdas)))
        control.SetElementoTablaSLR(fila, columna, valor);
    for (const auto& simbolo : datos.simbolos) control.InsertarSimboloGramatica(simbolo);
}

} // namespace norvik::inline v0_2
