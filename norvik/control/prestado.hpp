// SPDX-License-Identifier: MIT

#pragma once

namespace norvik::inline v0_2 {

/// Something that the parts of a control use and do not own, in one place for all of them: it can be
/// exchanged when its owner is about to go.
template <typename Tipo>
class Prestado {
public:
    explicit Prestado(Tipo& objeto) : objeto_(&objeto) {}
    Prestado(const Prestado&) = delete;
    Prestado& operator=(const Prestado&) = delete;
    ~Prestado() = default;

    Tipo& operator*() const { return *objeto_; }
    Tipo* operator->() const { return objeto_; }
    void cambia(Tipo& objeto) { objeto_ = &objeto; }

private:
    Tipo* objeto_;
};

} // namespace norvik::inline v0_2
