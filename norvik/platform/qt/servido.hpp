// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>

#include <memory>

namespace norvik {

// Whoever receives an event of a control may delete it then and there. Qt, which delivers the event, and the
// widget's own handlers then go on with a widget that is no more. So the widgets that hear of events take
// note of those that are being served, and one whose owner goes meanwhile leaves its window at once, but
// lives until the last of them is over: event loops inside them, of a message box say, included.

/// A widget that outlives its owner while an event of it is being served.
template <typename Widget>
class Servido : public Widget {
public:
    using Widget::Widget;

    /// An event is being served while this lives.
    class Servicio {
    public:
        explicit Servicio(Servido& widget) : widget_(&widget) { ++widget.servicios_; }
        Servicio(const Servicio&) = delete;
        Servicio& operator=(const Servicio&) = delete;
        ~Servicio() {
            if (widget_.isNull()) return; // the event was to delete it
            if (--widget_->servicios_ == 0 && widget_->despedido_) widget_->deleteLater();
        }

    private:
        QPointer<Servido> widget_;
    };

    /// How its owner deletes it.
    struct Despide {
        void operator()(Servido* widget) const {
            std::unique_ptr<Servido> propio(widget);
            if (propio->servicios_ == 0) return;
            propio->despedido_ = true;
            propio->setParent(nullptr);
            static_cast<void>(propio.release()); // the last event deletes it
        }
    };

private:
    int servicios_ = 0;
    bool despedido_ = false;
};

template <typename Widget>
using DuenioDeServido = std::unique_ptr<Servido<Widget>, typename Servido<Widget>::Despide>;

} // namespace norvik
