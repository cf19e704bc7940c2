#pragma once

#include <QWidget>

#include <functional>
#include <vector>

class QHBoxLayout;
class QStackedWidget;
class QToolButton;

namespace pastorix {

// The navigation strip of a sheet with sub-sheets: one pair of icon and label per sub-sheet, and a click on either, or its letter, brings
// that one up. The sub-sheets belong to the strip.
class TiraNavegacion : public QWidget {
public:
    // `baja`: labels beside the icons, for sheets that need the height.
    explicit TiraNavegacion(QWidget* padre = nullptr, bool baja = false);

    // Adds a sub-sheet behind the others; returns its index. The first one added is up.
    int Añadir(const char* icono, const QString& rotulo, QWidget* subficha);
    void Mostrar(int indice);
    void Pasar(int indice); // as the user does
    int Actual() const;

    std::function<void(int indice)> alCambiar; // the user brings another one up; called before it shows

private:
    bool m_baja;
    QHBoxLayout* m_fila;
    QStackedWidget* m_subfichas;
    std::vector<QToolButton*> m_botones;
};

} // namespace pastorix
