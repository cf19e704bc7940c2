#pragma once

#include <QDialog>
#include <QKeySequence>
#include <QShortcut>

#include <utility>
#include <vector>

namespace pastorix {

// A key of a window that no menu or button tells of. `texto` says what it does, in the list of keys.
template <typename F>
QShortcut* PonerAtajo(QWidget& ventana, const QKeySequence& tecla, const QString& texto, F&& orden) {
    auto* atajo = new QShortcut(tecla, &ventana);
    atajo->setWhatsThis(texto);
    QObject::connect(atajo, &QShortcut::activated, &ventana, std::forward<F>(orden));
    return atajo;
}

struct Atajo {
    QString tecla;
    QString texto; // "" where nothing tells
};
// The keys that a window really has: of its menus, of its buttons, its own; in the order in which they were made, each once.
std::vector<Atajo> AtajosDe(const QWidget& ventana);

// Their list, with those that hold everywhere.
class ListaDeAtajos : public QDialog {
public:
    explicit ListaDeAtajos(QWidget& ventana);
};

} // namespace pastorix
