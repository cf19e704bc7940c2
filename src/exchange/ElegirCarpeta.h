#pragma once

#include <QWidget>

class QComboBox;
class QListWidget;
class QTimer;

namespace pastorix {

// Drive and folder. Drives are the system's, or the home folder and the mounted media where there are none; a stick just put in appears. The
// list shows the folder that is entered and what lies in it: Enter or a double click goes in, the first line goes up.
class ElegirCarpeta : public QWidget {
    Q_OBJECT

public:
    explicit ElegirCarpeta(QWidget* padre = nullptr);

    QString Carpeta() const { return m_carpeta; }
    // A folder that is not there changes nothing; false then.
    bool PonerCarpeta(const QString& carpeta);

Q_SIGNALS:
    void Cambiada();

protected:
    void showEvent(QShowEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void LlenarUnidades();
    void LlenarCarpetas();
    void Entrar(int fila);

    QComboBox* m_unidades; // Drive1
    QListWidget* m_lista;  // Dir1
    QTimer* m_vigia;
    QString m_carpeta;
};

} // namespace pastorix
