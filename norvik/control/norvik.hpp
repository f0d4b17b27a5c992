// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/control/ayudas.hpp"
#include "norvik/control/bolsaPropiedades.hpp"
#include "norvik/control/contenedor.hpp"
#include "norvik/control/eventosControl.hpp"
#include "norvik/control/opciones.hpp"
#include "norvik/control/signosDelBorde.hpp"
#include "norvik/grammar/gramatica.hpp"
#include "norvik/lexer/parLT.hpp"
#include "norvik/lexer/pilaTokens.hpp"
#include "norvik/parser/arbol.hpp"
#include "norvik/platform/cajaTexto.hpp"
#include "norvik/platform/sistema.hpp"
#include "norvik/spec/cargadorLenguaje.hpp"
#include "norvik/spec/lenguaje.hpp"

#include <any>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace norvik::inline v0_2 {

class Colorista;
struct Literal;
class Historial;
class PartesControl;
struct DestinoBusqueda;

/// El control: un editor que conoce el lenguaje que se le ha cargado. La caja de texto, los servicios de su
/// entorno y, si tiene ventanas, lo que lo contiene los pone el anfitrión, y le sobreviven. Es de un solo
/// hilo. Una línea o un carácter que se cuenta lo hace desde 1, una posición desde 0; un carácter es una
/// unidad UTF-16, y un salto de línea son dos (CR LF).
///
/// Una propiedad son dos miembros de un mismo nombre: `X()` la lee y `X(valor)` la pone. Poner otro valor en
/// una que se guarda avisa al contenedor. Lo que se lanza deriva de `ErrorNorvik`, y el control se puede
/// seguir usando: nada queda ocupado, bloqueado ni oculto. Del lenguaje que se estuviera cargando llamada a
/// llamada queda lo que hubiera llegado.
///
/// Los receptores de sus eventos, y lo que corra mientras enseña un mensaje o atiende los eventos pendientes,
/// pueden cambiar el texto, analizarlo, lanzar y destruir el control, pero no cargar ni compilar un lenguaje
/// mientras él carga o compila otro. Un texto que se lea entre tanto se lee con el lenguaje anterior o con el
/// nuevo entero. La operación en que se destruye el control acaba sin él: no da más eventos ni toca la caja,
/// los servicios o el contenedor; la que registra una definición lanza `ErrorNorvik`.
class NORVIK_API Norvik final : public CargadorLenguaje {
    const std::shared_ptr<PartesControl> partes_; // before what refers to it

public:
    /// Toma los eventos de la caja y le pone la fuente de un control nuevo. Sin lenguaje.
    Norvik(CajaTexto& caja, Sistema& sistema, Contenedor& contenedor = sinContenedor());
    /// Suelta los eventos de la caja.
    ~Norvik() override;

    /// Los receptores del anfitrión.
    EventosControl& eventos;

    /// @name Cargar un lenguaje llamada a llamada
    /// Lo cargado se añade a lo que hay: antes de un segundo lenguaje se llama a `OlvidaLenguaje`. Las
    /// definiciones toman el `LenguajeSensible` y el color de su clase que haya en la llamada; su error se
    /// enseña en una caja de mensaje («Norvik: Error en especificación léxica»), no registra nada, y la
    /// llamada vuelve. Todas lanzan `ArgumentoNoValido` mientras el control enseña un error así, carga o
    /// compila, y `ErrorNorvik` si entonces se destruye.
    /// @{

    /// Registra una definición: `expresion` en el lenguaje de las especificaciones (sin comillas), `nomER` su
    /// nombre, `esToken` si es un token y no una definición auxiliar, `tipoToken` un `TipoExpReg`,
    /// `pseudoToken` su nombre para personas, `baseToken` una `baseNumerica`. `colorTexto` no tiene efecto.
    /// Lanza `Desbordamiento` con un tipo que no cabe en 16 bits o pasadas 32 767 definiciones.
    void SetER(std::u16string_view expresion, std::u16string_view nomER, bool esToken = false,
               std::int32_t tipoToken = Norvik_ExpReg, std::u16string_view pseudoToken = {},
               std::int32_t baseToken = Norvik_SinBase, std::int32_t colorTexto = sinColor) override;
    /// Lo mismo de un token cuya expresión es ya un patrón, sin referencias ni códigos.
    void SetPatron(std::u16string_view patron, std::u16string_view nomER, std::int32_t tipoToken,
                   std::u16string_view pseudoToken, std::int32_t baseToken, std::int32_t colorTexto) override;
    /// Lo que pide al principio el módulo de un lenguaje que distingue mayúsculas: pone `LenguajeSensible`,
    /// que se queda puesto, y los módulos que se escriban lo pedirán.
    void DistingueMayusculas() override;
    /// Registra una palabra reservada. Si `token` está vacío se convierte en la palabra en minúsculas.
    void SetPalabraReservada(std::u16string_view lexema, std::u16string& token,
                             std::u16string_view pseudoToken = {}) override;
    /// Lo mismo con un nombre de token que no es una variable.
    void SetPalabraReservada(std::u16string_view lexema, std::u16string_view token = {},
                             std::u16string_view pseudoToken = {});
    /// Registra un operador.
    void SetOperador(std::u16string_view lexema, std::u16string_view token,
                     std::u16string_view pseudoToken = {}) override;
    /// Registra los comentarios que van de lo que casa con un patrón al final de la línea, de nombre
    /// `comentario`.
    void SetComentarioLinea(std::u16string_view lexema) override;
    /// Añade las reglas de un texto `cabeza -> alternativa | alternativa …`; el número no tiene efecto. Lanza
    /// `NoCoincidenLosTipos` sin flecha y `SubindiceFueraDeIntervalo` en la regla 1001.
    void SetRegla(std::u16string_view regla, std::int16_t numIdentificacion = 0) override;
    /// Añade un símbolo a la tabla, en el orden de las columnas; el texto vacío no añade nada.
    void InsertarSimboloGramatica(std::u16string_view simboloG) override;
    /// Una tabla nueva, sin ninguna entrada ni conflicto. Lanza `SubindiceFueraDeIntervalo` con números
    /// negativos.
    void SetDimensionTablaSLR(std::int16_t filas, std::int16_t columnas) override;
    /// Pone una entrada; fila y columna desde 1. Lanza `SubindiceFueraDeIntervalo` si no están en la tabla, y
    /// `Desbordamiento` si la memoria de la tabla se agota.
    void SetElementoTablaSLR(std::int16_t posFilas, std::int16_t posColumnas, std::int16_t valorSLR) override;
    /// Pone muchas, desde la primera, hasta la primera que lanzaría; da cuántas ha puesto.
    std::size_t SetElementosTablaSLR(std::span<const CeldaSLR> celdas) override;
    /// Olvida las definiciones de tokens y nada más. Reglas, símbolos y tabla se quedan, y se les añadirían
    /// los de un segundo lenguaje: entre dos lenguajes va `OlvidaLenguaje`.
    void BorraLenguaje();
    /// Olvida el lenguaje entero: definiciones, reglas, símbolos, tabla y conflictos. Después se puede cargar
    /// otro, con un módulo o llamada a llamada. `CargaGramatica` no la necesita.
    void OlvidaLenguaje();

    /// @}

    /// @name Compilar
    /// @{

    /// Lee una especificación; la tabla la hace después `GeneraCompilador`. Falso si está mal escrita
    /// (`GetCodigoError` no es 0) o usa una variable sin reglas; `GetmensajeError` dice qué. Un patrón mal
    /// escrito se enseña en una caja de mensaje y su token falta; un token sin definición no se nota: quien
    /// quiera saberlo, y con su lugar, compile con `Lenguaje`.
    ///
    /// El lenguaje anterior se pierde siempre, también con falso o si lanza otra cosa que
    /// `ArgumentoNoValido`: si está mal escrita o no cabe, el control se queda con el de las
    /// especificaciones, que no es el de ningún texto suyo; si no, con las definiciones y reglas nuevas, y
    /// hasta `GeneraCompilador` con una tabla que no es la suya. Usa el texto invisible, y lo deja vacío; el
    /// árbol pasa a ser el de la especificación.
    ///
    /// Lanza `Desbordamiento` con 32 767 caracteres o más, `BusquedaDesbocada`, `SubindiceFueraDeIntervalo`
    /// en la regla 1001 (con lo anterior ya cargado) y `ArgumentoNoValido` mientras el control carga o
    /// compila.
    bool CargaGramatica(std::u16string_view codGramatica);
    /// Hace la tabla de las reglas que hay, atendiendo los eventos pendientes entre un paso y otro. Verdadero
    /// también sin reglas, sin hacer nada. Falso si una variable no tiene reglas: lo enseña en una caja de
    /// mensaje. Los conflictos no son un fallo: los dice `Gramatica().textoProblemas()`.
    ///
    /// Lanza `Desbordamiento` en el estado mil; `SubindiceFueraDeIntervalo` si un estado pasa de mil
    /// elementos o si un cuerpo tiene una Ø junto a otros símbolos, que no tiene columna; y
    /// `ArgumentoNoValido` mientras el control carga o compila. Las reglas se quedan, sin tabla.
    bool GeneraCompilador() override;

    /// @}

    /// @name Analizar
    /// @{

    /// Reconoce el texto de la caja con lo que el sistema da para trabajos largos, que pueden cancelarse; el
    /// análisis que venga después no tiene ya nada que esperar. Mientras tanto no se hace caso a la caja.
    /// Lanza `Desbordamiento` con 32 767 caracteres o más, `BusquedaDesbocada` y `OperacionCancelada`.
    void reconoceTexto();
    /// Analiza el texto de la caja. Verdadero si se acepta; si no, `GetCodigoError`, `GetmensajeError` y
    /// `GetDiagnostico` dicen qué está mal, y según las opciones se enseña un mensaje
    /// (`MuestraMensajesDeError`) y se marca la línea (`MarcarErrores`). Lanza `Desbordamiento` con 32 767
    /// caracteres o más o con una tabla que no deja de reducir, `BusquedaDesbocada`, y con una tabla cargada
    /// que es incorrecta `SubindiceFueraDeIntervalo` o `IndiceNoValido`.
    bool ConstruyeArbolSintactico();
    /// Lo mismo con el texto invisible; en su árbol, líneas y columnas son 0.
    bool ConstruyeArbolSintacticoTextoInvisible();
    /// El texto invisible, que se lee y analiza sin enseñarlo; al principio y tras `CargaGramatica` está
    /// vacío. La vista vale hasta que cambie.
    std::u16string_view GetTextoInvisible() const;
    void SetTextoInvisible(std::u16string_view texto);
    /// La raíz del árbol del último análisis, sin hijos cuando no se aceptó. Es el mismo nodo mientras viva
    /// el control; el análisis siguiente sustituye lo que cuelga de ella. Un nodo que se conservara pasa a
    /// leerse como recién inicializado (véase `Arbol`): quien quiera conservar un árbol use `analiza`.
    Arbol& GetArbolSintactico();
    /// Del último análisis: 0 ninguno, 1 error léxico, 2 error sintáctico.
    std::int16_t GetCodigoError() const;
    /// El mensaje de ese error, o el de `CargaGramatica`; vacío si no lo hubo. Vale hasta el siguiente.
    const std::u16string& GetmensajeError() const;
    /// El error del último análisis como valor: su rango exacto en el texto, en unidades UTF-16, y los tokens
    /// que caben ahí de verdad. Nada si el texto se aceptó. Vale hasta el análisis siguiente.
    const std::optional<Diagnostico>& GetDiagnostico() const;
    /// Recibe un texto, no hace nada y da uno vacío.
    std::u16string EjecutaCodigo(std::u16string_view codigoAEjecutar);

    /// @}

    /// @name Leer los tokens uno a uno
    /// @{

    /// Reconoce el texto de la caja y vuelve a su principio. Lanza como `ConstruyeArbolSintactico`.
    void InicializaLecturaTokens();
    /// El token siguiente, tras `InicializaLecturaTokens` y sin que el texto cambie. Al acabar el texto, uno
    /// de nombre `EOF`; con un carácter que no empieza ningún token, uno de nombre `Norvik_ERROR`, y la
    /// lectura no pasa de él.
    parLT Lex();
    /// Lo mismo con el texto invisible. Sigue la última lectura, que ha de ser suya: la empieza su análisis.
    parLT LexTextoInvisible();
    /// Línea y columna, desde 1, del último token cuando se leyó (también en un análisis), en el texto de que
    /// se leyó, aunque fuera el invisible. Un token que empieza en el último carácter de un salto de línea
    /// cuenta en la línea siguiente. `LineaToken` lanza `Desbordamiento` desde la línea 32 768.
    std::int16_t LineaToken() const;
    std::int32_t ColumnaToken() const;
    /// «Se ha encontrado 'fin' (Línea 4, Columna 1)»: el último token.
    std::u16string DameStringTokenLeido() const;
    /// «(Línea 4, Columna 1)».
    std::u16string DameStringLineaColumnaToken() const;

    /// @}

    /// @name Marcar en el color de error
    /// Líneas desde 1. Una marca se va al cambiar su línea; el cursor no se mueve y nada queda seleccionado.
    /// @{

    /// Marca una línea; una que no existe no marca nada.
    void MarcaErrorLinea(std::int16_t numLinea);
    /// Marca el último token leído, o el carácter incorrecto.
    void MarcaErrorToken();
    /// Marca la línea del último token leído.
    void MarcaErrorLineaToken();
    /// Pone una señal de error en el borde izquierdo; no se quitan. Lanza `Desbordamiento` tras 32 766
    /// señales.
    void PonSignoError(std::int16_t numLinea);

    /// @}

    /// @name Colorear
    /// No hacen nada si `Colorear` es falso. Lanzan `Desbordamiento` más allá del carácter 32 766, y
    /// `BusquedaDesbocada`. No dan eventos.
    /// @{
    void ColoreaTodo();
    /// Un comentario de varias líneas lo colorea `ColoreaTodo`.
    void ColoreaLineaActual();
    /// Con `Colorear` y la ayuda `coloreaAlEscribir`, y solo con las dos, pone los colores del lenguaje de
    /// ahora, que puede ser otro que en el último cambio del texto. Un widget lo hace cuando su lenguaje
    /// cambia.
    void actualizaColores();

    /// @}

    /// @name Líneas, desde 1
    /// @{

    /// La línea del cursor; lanza `Desbordamiento` desde la 32 768.
    std::int16_t LineaActual() const;
    /// La columna del cursor, desde 1, en caracteres.
    std::int32_t ColumnaActual() const;
    /// Cuántas había en el último cambio del texto.
    std::int32_t TotalLineas() const;
    /// Una línea sin su salto; de un texto vacío, un texto vacío. Lanza `ArgumentoNoValido` si no hay tal
    /// línea.
    std::u16string ContenidoLinea(std::int16_t numLinea) const;

    /// @}

    /// @name Deshacer
    /// El historial guarda el texto entero tras cada cambio, también los del programa: cada `Text(…)`
    /// distinto lo hace crecer, y no olvida ninguno por sí solo. Quien solo quiera analizar muchos textos use
    /// `analiza`.
    ///
    /// Con la ayuda `deshacePorPalabras` es otro: deshace exactamente, cada vez lo que se escribió o borró de
    /// una palabra o lo que hizo una orden, con la selección que había, y olvida lo más antiguo cuando pasa
    /// de 64 MB. El texto puesto entero en un historial vacío es su punto de partida. Encenderla o apagarla
    /// olvida los cambios.
    /// @{

    /// Olvida todos los cambios; el siguiente es el punto de partida, que no se deshace. Lanza
    /// `Desbordamiento`, después de hacerlo, si eran más de 32 767.
    void InicializaUndosYRedos();
    /// Deshace lo último que se escribió o borró. De un cambio que quitó y puso a la vez, o de un `Text(…)`,
    /// solo la diferencia de longitud; los del diálogo de reemplazar, enteros.
    void Undo();
    /// Rehace el último cambio deshecho.
    void Redo();
    /// Si hay algo que deshacer o rehacer.
    bool puedeDeshacer() const;
    bool puedeRehacer() const;

    /// @}

    /// @name Buscar
    /// @{

    /// Busca un texto entre dos posiciones, desde 0, y lo selecciona; un `final` de 0 es el del texto. Da su
    /// posición, -1 cuando no está. Las opciones son las de `opcionBusqueda`, que se suman.
    std::int32_t Find(std::u16string_view cadena, std::int32_t comienzo = 0, std::int32_t final = 0,
                      std::int32_t opciones = 0);
    /// Piden al contenedor su diálogo.
    void ShowBuscarDialog();
    void ShowReemplazarDialog();
    /// Aquello en que trabaja un diálogo que busca en este control.
    DestinoBusqueda destinoBusqueda();

    /// @}

    /// @name Ficheros e impresora
    /// @{

    /// Vacía el texto, el color de lo que se escriba a continuación y el historial. Lanza como
    /// `InicializaUndosYRedos`.
    void BorraTodo();
    /// Sustituye el texto por el de un fichero (`leeTexto`) y lo colorea; `change` se da dos veces, la
    /// primera con el texto vacío, y `textoCambiado` una, al final. Verdadero, o lanza: `ErrorDeFichero` con
    /// el texto vacío, o lo que lance `ColoreaTodo`.
    bool CargarFichero(const std::filesystem::path& nomFichero);
    /// Escribe el texto y un salto de línea (`escribeTexto`); falso si no se pudo, y el fichero sigue como
    /// estaba.
    bool SalvarFichero(const std::filesystem::path& nomFichero) const;
    /// Imprime el texto; un fallo se enseña en una caja de mensaje.
    void Imprimir();

    /// @}

    /// @name Lo que se guarda, y el intercambio con las herramientas de diseño
    /// @{

    /// Pone las propiedades de una bolsa; las que le faltan, a su valor por omisión, y el texto de la caja al
    /// suyo, vacío si no lo tiene. Lanza `NoCoincidenLosTipos` o `Desbordamiento` con el primer valor que no
    /// es de su propiedad; las anteriores quedan puestas.
    void restauraPropiedades(const BolsaPropiedades& bolsa);
    /// Escribe en una bolsa las que no tienen su valor por omisión, menos el texto de la caja y
    /// `LeftBorderVisible`.
    void guardaPropiedades(BolsaPropiedades& bolsa) const;
    /// Leerla copia `ContenidoG` y `CodigoPrueba` en las ranuras comunes del proceso, ponerla los toma de
    /// ellas.
    std::any editCode() const;
    void editCode(const std::any& valor);
    /// Recibe sus argumentos y no hace nada.
    void SetTraduccion(std::int16_t numRegla, std::u16string_view variableETDS,
                       std::u16string_view traduccion, std::u16string_view condicion = {},
                       std::u16string_view atributosDerivados = {});
    /// Pide al contenedor su ventana «Acerca de».
    void Acerca();
    /// Pide al contenedor la ventana con el informe de la gramática y del analizador léxico.
    void MuestraInforme();
    /// El lenguaje de ahora como valor, que no cambia cuando cambia el del control: para analizar en otro
    /// hilo, o un texto más largo que los del control. Sin tabla, con los tokens solos. Se hace la primera
    /// vez que se pide tras un cambio.
    Lenguaje lenguaje();
    /// Las ayudas de edición encendidas, y otras; no se guardan con las propiedades.
    const Ayudas& ayudas() const;
    void ponAyudas(const Ayudas& ayudas);

    /// @}

    /// @name Para quien muestra el control
    /// @{

    /// El control tiene otro tamaño.
    void redimensiona();
    /// La tecla de tabulación sacó el foco de la caja: escribe los espacios y lo devuelve.
    void tabuladorEnfocado();
    /// La de tabulación con la de mayúsculas, cuando `sangraSeleccion` es una de las ayudas: quita la sangría
    /// a las líneas de la selección o a la del cursor.
    void tabulaAtras();
    /// Se pulsó en la superficie del control, fuera de la caja.
    void clickEnSuperficie();
    /// Las opciones, juntas.
    const Opciones& opciones() const;
    /// Lo que colorea textos del lenguaje de ahora en otro hilo, y los colores del texto de ahora que ha
    /// dado, o de partes suyas: son los de un texto largo que los espera con `coloreaAlEscribir`.
    std::unique_ptr<Colorista> colorista();
    void tomaColores(std::span<const TramoDeColor> tramos);
    /// Los comentarios, cadenas y caracteres del texto de ahora, en orden. `nullptr` cuando buscarlos tarda
    /// demasiado, tras haberlo dicho una vez con `BusquedaDesbocada`.
    const std::vector<Literal>* literales();
    /// Reemplaza unos caracteres (desde 0) en un solo cambio que Deshacer quita exactamente, a diferencia de
    /// los demás que quitan y ponen a la vez.
    void reemplaza(std::int32_t inicio, std::int32_t longitud, std::u16string_view nuevo);

    /// @}

    /// @name Propiedades de la caja de texto
    /// Posiciones desde 0 y longitudes, en caracteres y de 16 bits: leer una mayor lanza `Desbordamiento`.
    /// @{

    /// El texto entero, con sus saltos como CR LF; puede ser más largo que lo que se colorea o analiza.
    std::u16string Text() const;
    /// Otro texto, sin colorear y con el cursor al principio; un CR o LF solo se convierte en CR LF. Es un
    /// cambio del historial. Uno igual no hace nada. Con `Colorear`, uno largo puede lanzar como
    /// `ColoreaTodo`, ya puesto.
    void Text(std::u16string_view texto);
    /// El texto seleccionado; ponerlo reemplaza la selección, y el cursor queda detrás.
    std::u16string SelText() const;
    void SelText(std::u16string_view texto);
    /// Donde empieza la selección. Ponerlo mueve el cursor y no selecciona nada.
    std::int16_t SelStart() const;
    void SelStart(std::int16_t posicion);
    /// Longitud de la selección.
    std::int16_t SelLength() const;
    void SelLength(std::int16_t longitud);
    /// Fuente de la selección.
    std::u16string SelFontName() const;
    void SelFontName(std::u16string_view nombre);
    /// Tamaño de la fuente de la selección, en puntos.
    std::int16_t SelFontSize() const;
    void SelFontSize(std::int16_t puntos);
    /// La fuente de todo el texto que no tiene una propia.
    const Fuente& Font() const;
    void Font(const Fuente& fuente);
    /// Si el texto se ha editado desde que se puso o se quitó la marca.
    bool TextoModificado() const;
    /// Falso quita la marca, verdadero no hace nada.
    void TextoModificado(bool modificado);

    /// @}

    /// @name Opciones
    /// Las explica `Opciones`.
    /// @{
    bool Borde3D() const;
    void Borde3D(bool valor);
    bool LeftBorderVisible() const;
    void LeftBorderVisible(bool valor);
    std::int16_t MargenIzquierdo() const;
    void MargenIzquierdo(std::int16_t twips);
    bool HideSelection() const;
    void HideSelection(bool valor);
    bool LenguajeSensible() const;
    void LenguajeSensible(bool valor);
    bool AutoCorreccion() const;
    void AutoCorreccion(bool valor);
    std::int16_t EspaciosXTAB() const;
    void EspaciosXTAB(std::int16_t cuantos);
    bool AutoTAB() const;
    void AutoTAB(bool valor);
    bool MarcarErrores() const;
    void MarcarErrores(bool valor);
    bool MuestraMensajesDeError() const;
    void MuestraMensajesDeError(bool valor);
    bool Colorear() const;
    void Colorear(bool valor);
    const std::u16string& NomLenguaje() const;
    void NomLenguaje(std::u16string_view nombre);
    /// Se guarda y no tiene otro efecto.
    bool AutoNumero() const;
    void AutoNumero(bool valor);

    /// @}

    /// @name Lo que el contenedor guarda para las herramientas de diseño
    /// @{

    /// La especificación del lenguaje en que se trabaja.
    const std::u16string& ContenidoG() const;
    void ContenidoG(std::u16string_view especificacion);
    /// El texto para probarla.
    const std::u16string& CodigoPrueba() const;
    void CodigoPrueba(std::u16string_view texto);

    /// @}

    /// @name Colores de las clases de tokens, 0x00BBGGRR
    /// Una definición toma el de su clase al registrarse: se ponen antes de cargar el lenguaje.
    /// @{
    std::int32_t ColorPR() const;
    void ColorPR(std::int32_t color);
    std::int32_t ColorOperadores() const;
    void ColorOperadores(std::int32_t color);
    std::int32_t ColorComentarios() const;
    void ColorComentarios(std::int32_t color);
    std::int32_t ColorEtiquetas() const;
    void ColorEtiquetas(std::int32_t color);
    std::int32_t ColorNumeros() const;
    void ColorNumeros(std::int32_t color);
    /// Se lee en cada marca.
    std::int32_t ColorError() const;
    void ColorError(std::int32_t color);
    std::int32_t ColorCadena() const;
    void ColorCadena(std::int32_t color);
    std::int32_t ColorCaracter() const;
    void ColorCaracter(std::int32_t color);
    std::int32_t ColorFechas() const;
    void ColorFechas(std::int32_t color);

    /// @}

    /// @name Lo que el control posee
    /// Vive lo que él.
    /// @{

    /// Las reglas, los conjuntos, el autómata y la tabla, con los que se escriben informes y módulos.
    gramatica& Gramatica();
    /// Las definiciones de tokens.
    pilaTokens& Lexico();
    /// Las señales del borde izquierdo, por su número.
    const SignosDelBorde::PorIndice& signos() const;
    const Historial& historial() const;

    /// @}

private:
    /// What is called on it goes on whole, whoever deletes the control meanwhile.
    std::shared_ptr<PartesControl> vivo() const { return partes_; }
};

} // namespace norvik::inline v0_2
