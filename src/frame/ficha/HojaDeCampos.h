#pragma once

#include "frame/ficha/CampoFicha.h"
#include "frame/ficha/CampoMemo.h"
#include "frame/ficha/CampoTexto.h"
#include "store/Recordset.h"

#include <QMap>
#include <QObject>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QToolButton;

namespace pastorix {

// Fields over a row: the table of fields of a sheet at work. It lays them out, shows a row, says what changed, and writes each field by its
// own rule. It has no key, no bar and no mode; whose row it is, and when it is written, is its owner's affair. The controls belong to the
// widgets they are laid out in.
class HojaDeCampos : public QObject {
public:
    HojaDeCampos(const DefinicionHoja& definicion, QWidget* ventana);

    // The fields of one grid with their captions at the places of the table; Tab goes by rows.
    QWidget* CrearRejilla(QWidget* padre, int hoja = 0);
    QGridLayout* Rejilla() const { return m_rejilla; } // of the one made last, for controls between them
    // The search icon beside a field; it shares the field's cell.
    QToolButton* PonerIcono(int icono, int indiceCampo, const QString& nombre,
                            std::function<void()> alPulsar);
    // A further control, of whose changes the owner hears like of the fields'.
    void Vigilar(QWidget* control);

    void Limpiar();
    // Shows the current row and takes it as what nobody has touched yet.
    void Mostrar(Recordset& rs);
    // What is being typed or gone through counts as left and decided on, before a save that a key asks for while the focus stays where it is.
    void Asentar();
    // What stands in the fields becomes what nobody has touched yet.
    void DarPorGuardado();
    // Something reads otherwise than it was shown; one field may be left out of account.
    bool Cambiada(int excepto = -1) const;
    // Assigns the fields to the current (or new) row, each by its rule; derived ones too. Fields without column are the owner's.
    void Escribir(Recordset& rs) const;
    // Names of the fields whose text will not go into the row, which keeps what it has.
    QStringList Conservados(Recordset& rs) const;

    bool Tiene(int indice) const { return m_campos.contains(indice) || m_memos.contains(indice); }
    CampoTexto& Campo(int indice) const { return *m_campos.at(indice); }
    CampoMemo& Memo(int indice) const { return *m_memos.at(indice); }
    QComboBox& Combo(std::string_view nombre) const { return *m_combos.find(nombre)->second; }
    QCheckBox& Marca(int indice) const { return *m_marcas.at(indice); }
    QLabel* Rotulo(int indice) const { return m_rotulos.at(indice); }
    std::string TextoStd(int indice) const;
    QString Texto(int indice) const { return QString::fromStdString(TextoStd(indice)); }
    void Poner(int indice, const std::string& texto);
    // Shows a date as dd/mm/yy, and stores it as it is.
    void PonerFecha(int indice, std::optional<Fecha> fecha);
    // The date in a field: the stored one while nobody touched it, for the field shows no more than two figures of its year; else what the text
    // says, if it is a date.
    std::optional<Fecha> FechaDe(int indice) const;
    // The item of that text, whatever its case; none when the list has no such item.
    void Elegir(std::string_view nombre, const std::string& texto);
    int AnchuraDe(const char* columna) const; // most characters that the column takes; 0 no limit
    const DefinicionHoja& Definicion() const { return m_definicion; }
    // A line that says what will not be stored as it stands; not there while there is nothing to say.
    QLabel* CrearPie(QWidget* padre);
    // A remark of the sheet's own on what stands in a field; "" takes it back. That a text is no date goes before it.
    void Señalar(int indice, const std::string& reparo);

    // The user is about to change something, or just has.
    std::function<void()> alEditar;
    // The focus left a field; a box or another window over the sheet is no leaving.
    std::function<void(QWidget& campo)> alDejar;
    // An item was decided on: chosen in the open list, or left standing by Enter or by leaving; not one passed with the arrows.
    std::function<void(QComboBox& combo)> alDecidir;
    // Enter in a field; true: it was the owner's affair, else the focus moves on.
    std::function<bool(QWidget& campo)> alConfirmar;
    const QWidget* trasElUltimo = nullptr; // the button that Enter goes to from the last field

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    QWidget* CrearCampo(const CampoFicha& campo, QWidget* padre);
    CampoTexto* CrearLinea(const CampoFicha& campo, QWidget* padre);
    CampoMemo* CrearMemo(QWidget* padre);
    QComboBox* CrearCombo(const ComboFicha& combo, QWidget* padre);
    QCheckBox* CrearMarca(const MarcaFicha& marca, QWidget* padre);
    void MostrarDetalle(const ComboFicha& combo);
    void Editar();
    void VigilarDecision(QComboBox& combo, const QEvent& evento);
    void Decidir(QComboBox& combo);
    bool Tecla(QWidget& campo, const class QKeyEvent& tecla);
    QMap<QString, QString> Contenido() const;
    void Reparar();

    const DefinicionHoja& m_definicion;
    QWidget* m_ventana;
    QGridLayout* m_rejilla = nullptr;
    QLabel* m_pie = nullptr;
    std::map<int, CampoTexto*> m_campos;
    std::map<int, CampoMemo*> m_memos;
    std::map<int, QLabel*> m_rotulos;
    std::map<std::string, QComboBox*, std::less<>> m_combos;
    std::map<int, QCheckBox*> m_marcas;
    QMap<QString, QString> m_mostrado; // what nobody has touched, by field
    std::map<int, Valor> m_fechas;     // of the row that is shown, or worked out since
    std::map<const QComboBox*, QString> m_decididos;
    std::map<const QComboBox*, QString> m_fueraDeLista; // stored texts that no item shows
    const QComboBox* m_pasando = nullptr;               // its items are being gone through by keys or wheel
};

} // namespace pastorix
