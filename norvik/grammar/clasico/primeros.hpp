// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/presupuesto.hpp"
#include "norvik/grammar/clasico/conjuntos.hpp"

#include <stop_token>
#include <vector>

namespace norvik::inline v0_2::clasico {

/// FIRST sets: of every head (`calcula`), and of a string of symbols (`recorre`). Both raise
/// `OperacionCancelada` once that is asked for.
class CalculoPrimeros {
public:
    CalculoPrimeros(const ReglasPartidas& reglas, Conjuntos& conjuntos, Pendientes& pendientes,
                    std::stop_token parada = {});

    /// Computes the FIRST set of every head.
    void calcula();

    /// Empties the set that `recorre` fills.
    void abre();
    /// Adds FIRST of a string on behalf of a rule (0: of none); false when the recursion never ends.
    /// Raises `SubindiceFueraDeIntervalo` when a string of no rule ends on a symbol that heads no rule.
    bool recorre(Cuerpo cuerpo, bool recursivo, int indice);
    ConjuntoDeTrabajo& trabajo() { return trabajo_; }
    /// True when FIRST of a string that begins with this symbol contains Ø. All sets must be finished.
    bool empiezaVacia(Simbolo simbolo) const;
    void exigeSeguir() const { norvik::exigeSeguir(parada_); }

private:
    /// One call of the recursion: the scan of a string.
    struct Marco {
        Marco(Cuerpo suCuerpo, int suIndice, bool esRecursivo, std::size_t suSituacion)
            : cuerpo(suCuerpo), indice(suIndice), recursivo(esRecursivo), situacion(suSituacion) {}

        Cuerpo cuerpo;
        int indice;
        bool recursivo;
        std::size_t situacion; ///< slot in `situaciones_`, 0 for the outermost call
        std::size_t posicion = 0;
        int hijo = 0; ///< rules `hijo` … `finHijos` − 1 of a pending symbol are still to be entered
        int finHijos = 0;
        bool enPendiente = false; ///< the symbol at `posicion` is pending and its rules have been taken up
        bool limpio = true;
        bool marca = false; ///< this call, or one below, has set the flag of the current index

        bool esUltimo() const { return posicion + 1 == cuerpo.size(); }
    };
    enum class Progreso : std::uint8_t { Nueva, EnCurso, Hecha, HechaConMarca };
    struct Situacion {
        std::uint32_t turno = 0;
        Progreso progreso = Progreso::Nueva;
    };

    bool pasada();
    bool noPuedeAcabar(int indice) const;
    bool procesa(int indice);
    void termina(Simbolo cabeza);
    void indexa();
    void anotaVacia(Simbolo nombre);
    bool entra(Marco& padre);
    bool avanza(Marco& marco);
    bool dejaPendiente(Marco& marco);
    void acaba(const Marco& marco);
    void cierra();
    void marca(Marco& marco, int indice);
    [[noreturn]] void fallaSinRegla(Simbolo simbolo) const;
    void sumaPrimeros(Simbolo simbolo);

    const ReglasPartidas& reglas_;
    Conjuntos& conjuntos_;
    Pendientes& pendientes_;
    std::stop_token parada_;
    IndiceDeConjuntos terminados_;
    std::vector<bool> conVacia_; // FIRST is finished and contains Ø
    bool enteras_ = true;        // no index may be passed over
    ConjuntoDeTrabajo trabajo_;
    ConjuntoDeTrabajo sumados_; // symbols whose FIRST has been added to `trabajo_`
    std::vector<Situacion> situaciones_;
    std::uint32_t turno_ = 0;
    std::vector<Marco> pila_;
};

/// The textbook FIRST sets (least fixpoint), one for every head, in order of first rule.
std::vector<ConjuntoNumerado> creaPrimerosDeLibro(const ReglasPartidas& reglas,
                                                  const std::stop_token& parada = {});

/// True when entering the rules of the symbols that a string may begin with can come back to a head through
/// others. It errs on the side of true.
bool hayRecursionIndirectaAlPrincipio(const ReglasPartidas& reglas);

} // namespace norvik::inline v0_2::clasico
