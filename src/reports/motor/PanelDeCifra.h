#pragma once

#include "reports/indices/Contados.h"

#include <QWidget>

#include <functional>

class QLabel;
class QTreeWidget;
class QTreeWidgetItem;

namespace pastorix {

// What the preview asks the program about a figure of its pages.
struct PreguntasDeCifra {
    std::function<std::optional<Explicacion>(const QString& clave)> explicar;
    std::function<void(QWidget* sobre, double vaca)> abrirVaca; // opens a cow's sheet
};

// Tells where a figure comes from, and lists the animals that it counted and those that it left out. Enter on one opens her sheet.
class PanelDeCifra : public QWidget {
    Q_OBJECT
public:
    explicit PanelDeCifra(QWidget* padre = nullptr);

    // impreso: the figure as it stands on the page. It is told when the data give another one by now.
    void Mostrar(const Explicacion& explicacion, const QString& impreso);

Q_SIGNALS:
    void VacaElegida(double vaca);

private:
    QTreeWidgetItem* Apartado(const QString& titulo, const Animales& animales);

    QLabel* m_titulo;
    QLabel* m_como;
    QTreeWidget* m_animales;
};

} // namespace pastorix
