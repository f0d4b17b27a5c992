// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

class QKeyEvent;
class QWheelEvent;

namespace norvik {

class CajaTextoQt;

/// The size at which a person sees the text, which changes nothing of its font: by the wheel and by keys with
/// the control key, while that is allowed, and by the host.
class Zoom final : public QObject {
public:
    static constexpr int normal = 100; ///< per cent

    explicit Zoom(CajaTextoQt& caja);

    int aumento() const { return aumento_; }
    /// As much of it as there is.
    void pon(int aumento);
    void permite(bool permitido) { permitido_ = permitido; }
    void amplia() { pon(aumento_ + paso); }
    void reduce() { pon(aumento_ - paso); }

protected:
    bool eventFilter(QObject* vista, QEvent* evento) override;

private:
    static constexpr int paso = 10;

    bool rueda(const QWheelEvent& evento);
    bool tecla(const QKeyEvent& evento);

    CajaTextoQt& caja_;
    int aumento_ = normal;
    int giro_ = 0; ///< of the wheel, not yet a step
    bool permitido_ = false;
};

} // namespace norvik
