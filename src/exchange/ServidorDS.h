#pragma once

#include "exchange/FormularioDeRuta.h"

namespace pastorix {

// The station's side: its whole database goes to the centre, or the centre's package takes its place. Folder and name make the path; the name
// may be typed.
class FormularioDS : public FormularioDeRuta {
    Q_OBJECT

public:
    void PonerNombre(const QString& nombre);

protected:
    FormularioDS(Sesion& sesion, const QString& titulo, const QString& fallo, const QString& nombre,
                 QWidget* padre);
    QString NombreSinExtension() const override;
    QWidget* Primero() const;
    bool Terminar(); // tells that it is done and closes; true

private:
    QLineEdit* m_nombre; // Ct_E(1)
};

class ExportarDS : public FormularioDS {
    Q_OBJECT

public:
    explicit ExportarDS(Sesion& sesion, QWidget* padre = nullptr);
    bool Aceptar() override;
};

class ImportarDS : public FormularioDS {
    Q_OBJECT

public:
    explicit ImportarDS(Sesion& sesion, QWidget* padre = nullptr);
    bool Aceptar() override;
    // What would change; only a staging file is written. Throws as the route does.
    Comparacion Simular();

private:
    bool Existe();
    std::filesystem::path Etapa() const;
    Comparacion Comparar();
};

} // namespace pastorix
