// SPDX-License-Identifier: MIT

#include "dibujoGrafo.hpp"

#include "norvik/platform/qt/fallos.hpp"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

#include <chrono>
#include <utility>

namespace norvik::taller {

namespace {

constexpr double porPulgada = 72;
constexpr std::chrono::seconds maximo{10};

QString entreComillasDot(QString texto) {
    return u'"' + texto.replace(u'\\', QLatin1String("\\\\")).replace(u'"', QLatin1String("\\\"")) + u'"';
}

QByteArray enDot(const Grafo& grafo) {
    QString dot = QStringLiteral("digraph {\nrankdir=LR; nodesep=0.35; ranksep=0.5;\n"
                                 "node [shape=box, fixedsize=true, label=\"\"];\n"
                                 "edge [fontname=\"sans\", fontsize=%1];\n")
                      .arg(grafo.letra);
    if (grafo.esDenso()) dot += QStringLiteral("nslimit=1; nslimit1=1; mclimit=0.1;\n");
    for (const Grafo::Caja& caja : grafo.cajas)
        dot += QStringLiteral("%1 [width=%2, height=%3];\n")
                   .arg(caja.numero)
                   .arg(caja.medida.width() / porPulgada)
                   .arg(caja.medida.height() / porPulgada);
    for (int i = 0; i < grafo.flechas.size(); ++i) {
        const Grafo::Flecha& flecha = grafo.flechas[i];
        dot += QStringLiteral("%1 -> %2 [id=\"%3\", label=%4];\n")
                   .arg(flecha.desde)
                   .arg(flecha.hasta)
                   .arg(i)
                   .arg(entreComillasDot(grafo.esDenso() ? QString() : flecha.rotulo));
    }
    return (dot + QStringLiteral("}\n")).toUtf8();
}

/// «x,y», of a picture that grows upwards.
QPointF punto(const QString& texto) {
    const QStringList xy = texto.split(u',');
    return xy.size() < 2 ? QPointF() : QPointF(xy[0].toDouble(), -xy[1].toDouble());
}

/// «e,x,y x,y x,y x,y x,y …»: where the arrow ends, then a point and three more for each curve.
void leeLinea(const QString& texto, GrafoColocado::Flecha& flecha) {
    QStringList trozos = texto.split(u' ', Qt::SkipEmptyParts);
    if (!trozos.isEmpty() && trozos.front().startsWith(QLatin1String("e,")))
        flecha.punta = punto(trozos.takeFirst().mid(2));
    if (trozos.isEmpty()) return;
    flecha.linea.moveTo(punto(trozos[0]));
    for (qsizetype i = 1; i + 2 < trozos.size(); i += 3)
        flecha.linea.cubicTo(punto(trozos[i]), punto(trozos[i + 1]), punto(trozos[i + 2]));
    flecha.llegada = flecha.linea.currentPosition();
}

} // namespace

GrafoColocado leeColocacion(const QByteArray& json) {
    GrafoColocado grafo;
    const QJsonObject raiz = QJsonDocument::fromJson(json).object();
    for (const QJsonValue valor : raiz[QLatin1String("objects")].toArray()) {
        const QJsonObject caja = valor.toObject();
        grafo.cajas.insert(caja[QLatin1String("name")].toString().toInt(),
                           punto(caja[QLatin1String("pos")].toString()));
    }
    for (const QJsonValue valor : raiz[QLatin1String("edges")].toArray()) {
        const QJsonObject arista = valor.toObject();
        GrafoColocado::Flecha flecha;
        leeLinea(arista[QLatin1String("pos")].toString(), flecha);
        flecha.rotulo = punto(arista[QLatin1String("lp")].toString());
        flecha.numero = arista[QLatin1String("id")].toString().toInt();
        grafo.flechas.append(flecha);
    }
    return grafo;
}

ColocadorGrafos::ColocadorGrafos(QString programa, QObject* padre)
    : QObject(padre), programa_(std::move(programa)) {
    plazo_.setSingleShot(true);
    plazo_.setInterval(maximo);
    connect(&plazo_, &QTimer::timeout, this, [this] {
        sinFallos([&] {
            para();
            emit fallo(QStringLiteral("Graphviz no ha acabado de colocar el autómata en %1 segundos.")
                           .arg(maximo.count()));
        });
    });
    connect(&proceso_, &QProcess::finished, this, [this](int salida, QProcess::ExitStatus estado) {
        acaba(salida == 0 && estado == QProcess::NormalExit);
    });
    connect(&proceso_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart || !std::exchange(espera_, false)) return;
        plazo_.stop();
        sinFallos([&] {
            emit fallo(
                QStringLiteral("Para dibujar el autómata hace falta Graphviz (la orden «%1»), y no está "
                               "instalado. La lista de estados dice lo mismo.")
                    .arg(programa_));
        });
    });
}

ColocadorGrafos::~ColocadorGrafos() {
    para();
}

void ColocadorGrafos::coloca(const Grafo& grafo) {
    para();
    espera_ = true;
    plazo_.start();
    proceso_.start(programa_, {QStringLiteral("-Tjson")});
    proceso_.write(enDot(grafo));
    proceso_.closeWriteChannel();
}

void ColocadorGrafos::para() {
    espera_ = false;
    plazo_.stop();
    if (proceso_.state() == QProcess::NotRunning) return;
    proceso_.kill();
    proceso_.waitForFinished();
}

void ColocadorGrafos::acaba(bool bien) {
    if (!std::exchange(espera_, false)) return;
    plazo_.stop();
    sinFallos([&] {
        const GrafoColocado grafo = bien ? leeColocacion(proceso_.readAllStandardOutput()) : GrafoColocado();
        if (grafo.cajas.isEmpty())
            emit fallo(QStringLiteral("Graphviz no ha podido colocar el autómata."));
        else
            emit colocado(grafo);
    });
}

} // namespace norvik::taller
