#pragma once

#include <QDialog>
#include <QString>

#include <span>

class QApplication;
class QLineEdit;
class QTextBrowser;
class QTreeWidget;
class QTreeWidgetItem;

namespace pastorix {

// Which heading of the manual tells about a window, or about one tab of it.
struct TemaDeAyuda {
    const char* ventana; // object name of a window, or of a part of one
    const char* pestaña; // caption of the tab, without blanks around; "" for the whole
    const char* titulo;  // as it stands in the manual
};
std::span<const TemaDeAyuda> TemasDeAyuda();

// The heading for a control: of the nearest part around it that has one. "" when none has.
QString TituloDeAyuda(const QWidget* control);

// The manual in a window of its own, with its chapters beside it and a search.
class VentanaAyuda : public QDialog {
public:
    // `pagina`: the manual's page for the screen. `titulo`: the heading to open at.
    VentanaAyuda(const QString& pagina, const QString& titulo, QWidget* padre);

    void IrA(const QString& titulo);
    QString Titulo() const; // of the chapter chosen beside the text

private:
    void LlenarCapitulos(const QString& html);
    void Buscar();

    QLineEdit* m_buscar;
    QTreeWidget* m_capitulos;
    QTextBrowser* m_texto;
};

// Opens the manual at what is in front. Where its page for the screen is not installed, the manual's document instead.
void MostrarAyuda(QWidget* desde);

// From now on F1 does so in every window.
void InstalarTeclaDeAyuda(QApplication& aplicacion);

} // namespace pastorix
