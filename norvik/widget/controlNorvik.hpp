// SPDX-License-Identifier: MIT

#pragma once

#include "norvik/base/api.hpp"
#include "norvik/base/diagnostico.hpp"
#include "norvik/control/contenedor.hpp"
#include "norvik/control/norvik.hpp"
#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/spec/lenguaje.hpp"
#include "norvik/widget/accionNorvik.hpp"

#include <QString>
#include <QWidget>

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// A property of the control and of its widget, as two members of its name, and what Qt sets it with, which
// raises nothing. A failure names the property.
#define NORVIK_PROPIEDAD(Tipo, Nombre)                                                                       \
public:                                                                                                      \
    Tipo Nombre() const {                                                                                    \
        return control_.Nombre();                                                                            \
    }                                                                                                        \
    void Nombre(Tipo valor) {                                                                                \
        control_.Nombre(valor);                                                                              \
    }                                                                                                        \
    NORVIK_PROPIEDAD_DE_QT(Tipo, Nombre, true)
#define NORVIK_PROPIEDAD_DE_QT(Tipo, Nombre, aceptable)                                                      \
private:                                                                                                     \
    void pon##Nombre(const Tipo& valor) {                                                                    \
        if (aceptable) protege([&] { Nombre(valor); });                                                      \
    }                                                                                                        \
                                                                                                             \
public:
#define NORVIK_PROPIEDAD_16(Nombre)                                                                          \
    int Nombre() const {                                                                                     \
        return control_.Nombre();                                                                            \
    }                                                                                                        \
    void Nombre(int valor) {                                                                                 \
        control_.Nombre(de16Bits(valor, u"" #Nombre));                                                       \
    }                                                                                                        \
    NORVIK_PROPIEDAD_DE_QT(int, Nombre, std::in_range<std::int16_t>(valor))
/// Un color 0x00BBGGRR, y lo mismo como propiedad de Qt.
#define NORVIK_PROPIEDAD_COLOR(Nombre)                                                                       \
    NORVIK_PROPIEDAD(int, Nombre)                                                                            \
    QColor Nombre##Qt() const {                                                                              \
        return colorQt(control_.Nombre());                                                                   \
    }                                                                                                        \
    void Nombre##Qt(const QColor& valor) {                                                                   \
        control_.Nombre(valor.isValid() ? deQColor(valor) : sinColor);                                       \
    }                                                                                                        \
    NORVIK_PROPIEDAD_DE_QT(QColor, Nombre##Qt, true)
#define NORVIK_PROPIEDAD_TEXTO(Nombre)                                                                       \
    QString Nombre() const {                                                                                 \
        return aQString(control_.Nombre());                                                                  \
    }                                                                                                        \
    void Nombre(const QString& valor) {                                                                      \
        control_.Nombre(vistaDe(valor));                                                                     \
    }                                                                                                        \
    NORVIK_PROPIEDAD_DE_QT(QString, Nombre, true)
// Whether an aid of editing is on.
#define NORVIK_AYUDA(Nombre)                                                                                 \
    bool Nombre() const {                                                                                    \
        return control_.ayudas().Nombre;                                                                     \
    }                                                                                                        \
    void Nombre(bool encendida) {                                                                            \
        ponAyuda(&Ayudas::Nombre, encendida);                                                                \
    }

class QAction;

namespace norvik {

class CajaTextoQt;
class SistemaQt;

/// El control como widget de Qt: su caja de texto y lo que la rodea. Sus opciones y sus eventos son
/// propiedades y señales con los mismos nombres; lo demás (cargar un lenguaje, analizar, marcar…) lo hace el
/// propio control, `control()`. Es del hilo de la interfaz, y se le da un padre o se tiene por valor como a
/// cualquier `QWidget`.
///
/// Posiciones desde 0, en caracteres, y un salto de línea son dos (CR LF); longitudes en la pantalla en
/// twips. Un color es 0x00BBGGRR en su miembro (`ColorPR`) y un `QColor` en su propiedad de Qt, de miembros
/// `ColorPRQt`, donde uno no válido es ninguno. Un número que no cabe en 16 bits lanza `Desbordamiento`, que
/// nombra la propiedad; puesto como propiedad de Qt (`setProperty`), deja el valor que había.
///
/// Una señal puede llevar sus argumentos por referencia: una ranura conectada directamente los puede cambiar.
/// Una ranura puede hacer cualquier cosa, también destruir el widget en el acto, o lanzar. Lo que se lance
/// mientras el usuario escribe o pulsa, en una ranura del control o al poner una propiedad de Qt no llega a
/// Qt: se cuenta después (`fallo`), una vez por fallo mientras el texto sea demasiado largo, y el texto
/// queda. Lo que lance una llamada del anfitrión le llega a él.
class NORVIK_API ControlNorvik : public QWidget, private Contenedor {
    Q_OBJECT
    Q_PROPERTY(bool Borde3D READ Borde3D WRITE ponBorde3D NOTIFY opcionesCambiadas)
    Q_PROPERTY(
        bool LeftBorderVisible READ LeftBorderVisible WRITE ponLeftBorderVisible NOTIFY opcionesCambiadas)
    Q_PROPERTY(int MargenIzquierdo READ MargenIzquierdo WRITE ponMargenIzquierdo NOTIFY opcionesCambiadas)
    Q_PROPERTY(bool HideSelection READ HideSelection WRITE ponHideSelection NOTIFY opcionesCambiadas)
    Q_PROPERTY(bool LenguajeSensible READ LenguajeSensible WRITE ponLenguajeSensible NOTIFY opcionesCambiadas)
    Q_PROPERTY(bool AutoCorreccion READ AutoCorreccion WRITE ponAutoCorreccion NOTIFY opcionesCambiadas)
    Q_PROPERTY(int EspaciosXTAB READ EspaciosXTAB WRITE ponEspaciosXTAB NOTIFY opcionesCambiadas)
    Q_PROPERTY(bool AutoTAB READ AutoTAB WRITE ponAutoTAB NOTIFY opcionesCambiadas)
    Q_PROPERTY(bool MarcarErrores READ MarcarErrores WRITE ponMarcarErrores NOTIFY opcionesCambiadas)
    Q_PROPERTY(bool MuestraMensajesDeError READ MuestraMensajesDeError WRITE ponMuestraMensajesDeError NOTIFY
                   opcionesCambiadas)
    Q_PROPERTY(bool Colorear READ Colorear WRITE ponColorear NOTIFY opcionesCambiadas)
    Q_PROPERTY(QString NomLenguaje READ NomLenguaje WRITE ponNomLenguaje NOTIFY opcionesCambiadas)
    Q_PROPERTY(bool AutoNumero READ AutoNumero WRITE ponAutoNumero NOTIFY opcionesCambiadas)
    Q_PROPERTY(QColor ColorPR READ ColorPRQt WRITE ponColorPRQt NOTIFY opcionesCambiadas)
    Q_PROPERTY(
        QColor ColorOperadores READ ColorOperadoresQt WRITE ponColorOperadoresQt NOTIFY opcionesCambiadas)
    Q_PROPERTY(
        QColor ColorComentarios READ ColorComentariosQt WRITE ponColorComentariosQt NOTIFY opcionesCambiadas)
    Q_PROPERTY(QColor ColorEtiquetas READ ColorEtiquetasQt WRITE ponColorEtiquetasQt NOTIFY opcionesCambiadas)
    Q_PROPERTY(QColor ColorNumeros READ ColorNumerosQt WRITE ponColorNumerosQt NOTIFY opcionesCambiadas)
    Q_PROPERTY(QColor ColorError READ ColorErrorQt WRITE ponColorErrorQt NOTIFY opcionesCambiadas)
    Q_PROPERTY(QColor ColorCadena READ ColorCadenaQt WRITE ponColorCadenaQt NOTIFY opcionesCambiadas)
    Q_PROPERTY(QColor ColorCaracter READ ColorCaracterQt WRITE ponColorCaracterQt NOTIFY opcionesCambiadas)
    Q_PROPERTY(QColor ColorFechas READ ColorFechasQt WRITE ponColorFechasQt NOTIFY opcionesCambiadas)
    Q_PROPERTY(QFont Font READ Font WRITE ponFont NOTIFY opcionesCambiadas)
    Q_PROPERTY(QString ContenidoG READ ContenidoG WRITE ponContenidoG NOTIFY opcionesCambiadas)
    Q_PROPERTY(QString CodigoPrueba READ CodigoPrueba WRITE ponCodigoPrueba NOTIFY opcionesCambiadas)
    Q_PROPERTY(bool TextoModificado READ TextoModificado WRITE ponTextoModificado NOTIFY modificacionCambiada
                   STORED false DESIGNABLE false)
    Q_PROPERTY(QString Text READ Text WRITE ponText NOTIFY textoCambiado STORED false DESIGNABLE false)
    Q_PROPERTY(
        QString SelText READ SelText WRITE ponSelText NOTIFY seleccionCambiada STORED false DESIGNABLE false)
    Q_PROPERTY(int SelStart READ inicioSeleccion WRITE ponSelStart NOTIFY seleccionCambiada
                   STORED false DESIGNABLE false)
    Q_PROPERTY(int SelLength READ longitudSeleccion WRITE ponSelLength NOTIFY seleccionCambiada
                   STORED false DESIGNABLE false)
    Q_PROPERTY(QString SelFontName READ SelFontName WRITE ponSelFontName NOTIFY seleccionCambiada
                   STORED false DESIGNABLE false)
    Q_PROPERTY(int SelFontSize READ SelFontSize WRITE ponSelFontSize NOTIFY seleccionCambiada
                   STORED false DESIGNABLE false)
    Q_PROPERTY(bool coloreaAlEscribir READ coloreaAlEscribir WRITE coloreaAlEscribir NOTIFY ayudasCambiadas)
    Q_PROPERTY(bool numerosDeLinea READ numerosDeLinea WRITE numerosDeLinea NOTIFY ayudasCambiadas)
    Q_PROPERTY(bool resaltaLinea READ resaltaLinea WRITE resaltaLinea NOTIFY ayudasCambiadas)
    Q_PROPERTY(bool resaltaParejas READ resaltaParejas WRITE resaltaParejas NOTIFY ayudasCambiadas)
    Q_PROPERTY(bool permiteZoom READ permiteZoom WRITE permiteZoom NOTIFY ayudasCambiadas)
    Q_PROPERTY(
        bool deshacePorPalabras READ deshacePorPalabras WRITE deshacePorPalabras NOTIFY ayudasCambiadas)
    Q_PROPERTY(bool sangraSeleccion READ sangraSeleccion WRITE sangraSeleccion NOTIFY ayudasCambiadas)
    Q_PROPERTY(bool teclasDePalabra READ teclasDePalabra WRITE teclasDePalabra NOTIFY ayudasCambiadas)
    Q_PROPERTY(bool barraDeBusqueda READ barraDeBusqueda WRITE barraDeBusqueda NOTIFY ayudasCambiadas)
    Q_PROPERTY(bool completa READ completa WRITE completa NOTIFY ayudasCambiadas)
    Q_PROPERTY(bool pliega READ pliega WRITE pliega NOTIFY ayudasCambiadas)
    Q_PROPERTY(bool soloLectura READ soloLectura WRITE soloLectura NOTIFY soloLecturaCambiada)
    Q_PROPERTY(int aumento READ aumento WRITE aumento NOTIFY aumentoCambiado STORED false DESIGNABLE false)

public:
    /// Con unos servicios propios.
    explicit ControlNorvik(QWidget* padre = nullptr);
    /// Con los servicios que comparten las ventanas de alrededor, que le sobreviven.
    ControlNorvik(SistemaQt& sistema, QWidget* padre);
    ControlNorvik(const ControlNorvik&) = delete;
    ControlNorvik& operator=(const ControlNorvik&) = delete;
    ~ControlNorvik() override;

    /// El control; vive lo que el widget, como los dos que siguen.
    Norvik& control() { return control_; }
    /// Su caja de texto y sus servicios (cajas de mensaje, puntero, impresora), para las ventanas de Norvik.
    CajaTextoQt& caja();
    const CajaTextoQt& caja() const;
    SistemaQt& sistema();

    /// @name Propiedades
    /// Como las de `Norvik`.
    /// @{

    NORVIK_PROPIEDAD(bool, Borde3D)
    NORVIK_PROPIEDAD(bool, LeftBorderVisible)
    NORVIK_PROPIEDAD_16(MargenIzquierdo)
    NORVIK_PROPIEDAD(bool, HideSelection)
    NORVIK_PROPIEDAD(bool, LenguajeSensible)
    NORVIK_PROPIEDAD(bool, AutoCorreccion)
    NORVIK_PROPIEDAD_16(EspaciosXTAB)
    NORVIK_PROPIEDAD(bool, AutoTAB)
    NORVIK_PROPIEDAD(bool, MarcarErrores)
    NORVIK_PROPIEDAD(bool, MuestraMensajesDeError)
    NORVIK_PROPIEDAD(bool, Colorear)
    NORVIK_PROPIEDAD_TEXTO(NomLenguaje)
    NORVIK_PROPIEDAD(bool, AutoNumero)
    NORVIK_PROPIEDAD_COLOR(ColorPR)
    NORVIK_PROPIEDAD_COLOR(ColorOperadores)
    NORVIK_PROPIEDAD_COLOR(ColorComentarios)
    NORVIK_PROPIEDAD_COLOR(ColorEtiquetas)
    NORVIK_PROPIEDAD_COLOR(ColorNumeros)
    NORVIK_PROPIEDAD_COLOR(ColorError)
    NORVIK_PROPIEDAD_COLOR(ColorCadena)
    NORVIK_PROPIEDAD_COLOR(ColorCaracter)
    NORVIK_PROPIEDAD_COLOR(ColorFechas)
    QFont Font() const { return aQFont(control_.Font()); }
    void Font(const QFont& letra) { control_.Font(deQFont(letra, control_.Font())); }
    NORVIK_PROPIEDAD_DE_QT(QFont, Font, true)
    /// La especificación del lenguaje en que se trabaja. Sus saltos de línea, como quiera que se pongan, son
    /// CR LF.
    QString ContenidoG() const { return aQString(control_.ContenidoG()); }
    void ContenidoG(const QString& texto) { control_.ContenidoG(vistaDe(conSaltos(texto))); }
    NORVIK_PROPIEDAD_DE_QT(QString, ContenidoG, true)
    /// El texto para probarla, con los saltos de línea igual.
    QString CodigoPrueba() const { return aQString(control_.CodigoPrueba()); }
    void CodigoPrueba(const QString& texto) { control_.CodigoPrueba(vistaDe(conSaltos(texto))); }
    NORVIK_PROPIEDAD_DE_QT(QString, CodigoPrueba, true)
    NORVIK_PROPIEDAD(bool, TextoModificado)
    NORVIK_PROPIEDAD_TEXTO(Text)
    NORVIK_PROPIEDAD_TEXTO(SelText)
    NORVIK_PROPIEDAD_16(SelStart)
    NORVIK_PROPIEDAD_16(SelLength)
    NORVIK_PROPIEDAD_TEXTO(SelFontName)
    NORVIK_PROPIEDAD_16(SelFontSize)

    /// @}

    /// @name Ayudas de edición
    /// Las explica `Ayudas`. Están apagadas en un widget nuevo.
    /// @{

    NORVIK_AYUDA(coloreaAlEscribir)
    NORVIK_AYUDA(numerosDeLinea)
    NORVIK_AYUDA(resaltaLinea)
    NORVIK_AYUDA(resaltaParejas)
    NORVIK_AYUDA(permiteZoom)
    NORVIK_AYUDA(deshacePorPalabras)
    NORVIK_AYUDA(sangraSeleccion)
    NORVIK_AYUDA(teclasDePalabra)
    NORVIK_AYUDA(barraDeBusqueda)
    NORVIK_AYUDA(completa)
    NORVIK_AYUDA(pliega)

    /// @}

    /// @name Para un programa
    /// @{

    /// El usuario puede moverse por el texto y copiarlo, y no cambiarlo; el programa, sí.
    bool soloLectura() const;
    void soloLectura(bool valor);
    /// Tamaño a que se ve el texto, en tanto por ciento del de su fuente: de 30 a 500.
    int aumento() const;
    void aumento(int porcentaje);
    /// Lo que está mal en el texto, en lugar de lo que se puso antes: un subrayado ondulado con sus palabras
    /// en una ayuda, y una marca en el borde izquierdo. Los rangos cuentan las unidades del texto, como los
    /// que da `analiza(lenguaje, control().Text())`. Se mueven con el texto, y se van con sus caracteres.
    void ponDiagnosticos(const std::vector<norvik::Diagnostico>& diagnosticos);
    /// Lo que propone el completado en una posición del texto (desde 0), en lugar de lo que dice la tabla de
    /// su lenguaje (`continuaciones`). Lo que lance se cuenta como `fallo`.
    void proponCon(std::function<Continuaciones(std::u16string_view texto, std::size_t posicion)> propone);
    /// Carga el lenguaje de una especificación, o el de un fichero con una especificación o con un módulo de
    /// carga («.bas»), en lugar del que hay, y colorea el texto con él. Da lo que está mal en ella; con
    /// errores el lenguaje anterior se queda. Un fichero que no se puede leer, o una especificación que no
    /// cabe en el control, es un `fallo`, y lo que se da entonces no tiene lenguaje ni diagnósticos.
    Q_INVOKABLE norvik::Compilacion cargaLenguaje(const QString& especificacion);
    Q_INVOKABLE norvik::Compilacion cargaLenguajeDe(const QString& fichero);

    /// @}

    /// El texto que se analiza sin enseñarlo.
    QString TextoInvisible() const { return aQString(control_.GetTextoInvisible()); }

    /// Una acción de las que los menús y las barras suelen tener, con su texto, sus teclas, que valen
    /// mientras el control tiene el foco, y activa cuando sirve de algo. Es del control y siempre la misma.
    /// Las teclas con Control, que el control deja a su anfitrión, solo tienen efecto si se han pedido sus
    /// acciones.
    QAction* accion(AccionNorvik cual);

    QSize sizeHint() const override { return {480, 320}; }

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers): a section of Qt's
    /// Olvida el lenguaje entero (`Norvik::OlvidaLenguaje`).
    void OlvidaLenguaje() {
        protege([this] { control_.OlvidaLenguaje(); });
    }
    /// Otro texto invisible.
    void SetTextoInvisible(const QString& texto) {
        protege([&] { control_.SetTextoInvisible(vistaDe(texto)); });
    }
    /// Selecciona un rango del texto, lo trae a la vista y toma el foco.
    void irA(const norvik::Rango& rango);
    /// El texto se ve un poco mayor, menor o como es su fuente.
    void amplia();
    void reduce();
    void tamanoNormal() { aumento(100); }

Q_SIGNALS:
    /// @name Señales
    /// Las explica `EventosControl`.
    /// @{
    void CambioDeLinea(qint16& LineaActual);
    void change();
    void Click();
    void KeyDown(qint16& KeyCode, qint16& Shift);
    void KeyPress(qint16& KeyAscii);
    void KeyUp(qint16& KeyCode, qint16& Shift);
    void MouseDown(qint16& Button, qint16& Shift, float& x, float& y);
    void MouseMove(qint16& Button, qint16& Shift, float& x, float& y);
    void MouseUp(qint16& Button, qint16& Shift, float& x, float& y);
    void SelChange();
    void textoCambiado();
    /// @}

    /// @name Avisos de las propiedades
    /// De una o varias de las que se guardan (`propiedadCambiada` dice cuál), de las ayudas, de la selección
    /// y su fuente, y de las que nombran. Las que no son del programa se avisan al acabar lo que las cambió.
    /// @{
    void opcionesCambiadas();
    void ayudasCambiadas();
    void seleccionCambiada();
    void modificacionCambiada();
    void soloLecturaCambiada();
    void aumentoCambiado();
    /// @}

    /// Una propiedad que se guarda tiene otro valor.
    void propiedadCambiada(const QString& nombre);
    /// Se ha lanzado algo que no tenía adónde ir. Llega con los eventos siguientes; de lo que se lance hasta
    /// entonces, solo lo primero. Quien lo cuente pone `contado`; si nadie lo hace, se enseña en una caja de
    /// mensaje.
    void fallo(const QString& texto, bool& contado);

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    void changeEvent(QEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

private:
    struct EstadoDelTexto;
    struct Piezas;

    ControlNorvik(SistemaQt* compartido, QWidget* padre);
    /// Does something whose failure is told and goes no further.
    void protege(const std::function<void()>& orden);
    static std::int16_t de16Bits(int valor, std::u16string_view nombre);
    int inicioSeleccion() const; // of any length of text
    int longitudSeleccion() const;
    static QColor colorQt(std::int32_t color) { return color == sinColor ? QColor() : aQColor(color); }
    static QString conSaltos(const QString& texto);
    void cambioDePropiedad(std::u16string_view nombre) override;
    void opcionesRestauradas() override { Q_EMIT opcionesCambiadas(); }
    void ponAyuda(bool Ayudas::*ayuda, bool encendida);
    void otrasAyudas() override;
    void cambioElTexto(const CambioDeTexto& cambio) override;
    bool coloreaDespues() override;
    void otroLenguaje() override;
    Medidas medidas() const override;
    void muestraMarco(bool visible) override;
    void muestraBordeIzquierdo(bool visible) override;
    void coloca(const Disposicion& disposicion) override;
    void ponSigno(const signoDebuger& signo, const LugarDeSigno& lugar) override;
    void muestraInforme() override;
    void muestraBuscar() override;
    void muestraReemplazar() override;
    void muestraAcerca() override;

    void ordenaTabulador();
    void conectaEventos();
    void conectaElementos();
    void cuentaFallo(const std::u16string& texto);
    void alDia();
    EstadoDelTexto estado() const;
    void avisaEstado();
    void tomaFuente();
    Compilacion carga(const std::function<Compilacion()>& orden);
    std::array<QWidget*, 3> observados();
    void enfocaTabulador(Qt::FocusReason razon);
    void entraEnTabulador(Qt::FocusReason razon);
    bool atiendeTecla(const QKeyEvent& tecla);
    bool atiendeTabulador(const QKeyEvent& tecla);
    void saleHaciaDelante();

    const std::unique_ptr<Piezas> piezas_;
    Norvik control_;
    bool pulsada_ = false;                    ///< la superficie, con el botón izquierdo
    std::set<std::u16string> fallosContados_; ///< de un texto demasiado largo
};

} // namespace norvik

#undef NORVIK_PROPIEDAD
#undef NORVIK_PROPIEDAD_DE_QT
#undef NORVIK_PROPIEDAD_16
#undef NORVIK_PROPIEDAD_COLOR
#undef NORVIK_PROPIEDAD_TEXTO
#undef NORVIK_AYUDA
