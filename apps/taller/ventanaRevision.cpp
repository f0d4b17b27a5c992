// SPDX-License-Identifier: MIT

#include "ventanaRevision.hpp"

#include "norvik/checks/historiaTexto.hpp"
#include "norvik/platform/qt/conversiones.hpp"
#include "norvik/spec/directivas.hpp"
#include "norvik/tools/ventanas.hpp"

namespace norvik::taller {

namespace {

QString escapado(std::u16string_view texto) {
    return aQString(texto).toHtmlEscaped();
}

QString enHtml(const Hallazgo& hallazgo, std::u16string_view especificacion) {
    const Diagnostico& d = hallazgo.diagnostico;
    const auto inicio = static_cast<std::size_t>(d.rango.inicio.desplazamiento) -
                        static_cast<std::size_t>(d.rango.inicio.columna - 1);
    const std::u16string_view resto = especificacion.substr(inicio);
    QString html = QStringLiteral("<p><b>%1</b>, línea %2, columna %3: %4</p><pre>    %5</pre>")
                       .arg(escapado(nombreDe(d.gravedad)))
                       .arg(d.rango.inicio.linea)
                       .arg(d.rango.inicio.columna)
                       .arg(escapado(mensaje(d)), escapado(resto.substr(0, resto.find_first_of(u"\r\n"))));
    for (const HistoriaConflicto& historia : hallazgo.historias)
        html += QStringLiteral("<pre>%1</pre>").arg(escapado(enTexto(historia)));
    return html;
}

} // namespace

VentanaRevision::VentanaRevision(QWidget* padre)
    : QDialog(padre), botones_(QDialogButtonBox::Close), pasar_(QStringLiteral("Pasar al método &lalr")) {
    setWindowTitle(QStringLiteral("Revisión del lenguaje"));
    mide(*this, {760, 520});
    hallazgos_.setAccessibleName(QStringLiteral("Lo que se ha encontrado"));
    pasar_.setToolTip(QStringLiteral("Pone la directiva '% metodo: lalr y vuelve a generar el lenguaje"));
    botones_.button(QDialogButtonBox::Close)->setText(QStringLiteral("&Cerrar"));
    botones_.addButton(&pasar_, QDialogButtonBox::ActionRole);
    columna_.addWidget(&hallazgos_);
    columna_.addWidget(&botones_);
    setLayout(&columna_);
    connect(&botones_, &QDialogButtonBox::rejected, this, &QDialog::close);
    connect(&pasar_, &QPushButton::clicked, this, &VentanaRevision::pideLalr);
}

void VentanaRevision::muestra(const QString& nombre, std::u16string_view especificacion,
                              const std::vector<Hallazgo>& hallazgos) {
    const bool clasico =
        leeDirectivas(especificacion, Lugares::Unidad::Utf16).tabla.metodo == Metodo::Clasico;
    QString html = QStringLiteral("<h3>%1</h3>").arg(nombre.toHtmlEscaped());
    if (hallazgos.empty()) html += QStringLiteral("<p>No se ha encontrado nada que decir.</p>");
    for (const Hallazgo& hallazgo : hallazgos) html += enHtml(hallazgo, especificacion);
    hallazgos_.setHtml(html);
    pasar_.setVisible(clasico);
    open(); // no other language becomes the active one meanwhile
    raise();
    activateWindow();
    hallazgos_.setFocus();
}

} // namespace norvik::taller
