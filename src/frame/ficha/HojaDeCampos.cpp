// Fields over a row: what is shown, told and written. How the controls are made stands in HojaConstruccion.cpp.
#include "frame/ficha/HojaDeCampos.h"

#include "frame/ficha/Aspecto.h"
#include "store/Catalogo.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>

#include <algorithm>

namespace pastorix {

namespace {

// A key that changes a text, as against one that moves about or asks for something.
bool EsDeEscritura(const QKeyEvent& e) {
    if (e.key() == Qt::Key_Delete || e.key() == Qt::Key_Backspace)
        return true;
    if (e.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return false;
    return !e.text().isEmpty() && e.text().at(0).isPrint();
}

// A value is found in the list by its text, whatever its case. Where texts outside the list are allowed it shows all the same.
void MostrarEn(QComboBox& combo, const QString& valor) {
    const int i = combo.findText(valor, Qt::MatchFixedString);
    combo.setCurrentIndex(std::max(i, 0)); // the first item is the empty one
    if (i < 0 && combo.isEditable())
        combo.setEditText(valor);
}

bool EsCero(const Valor& v) {
    return !EsNulo(v) && !std::holds_alternative<std::string>(v) && NumeroDe(v) == 0;
}

} // namespace

HojaDeCampos::HojaDeCampos(const DefinicionHoja& definicion, QWidget* ventana)
    : QObject(ventana)
    , m_definicion(definicion)
    , m_ventana(ventana) {}

void HojaDeCampos::Limpiar() {
    for (const auto& [indice, campo] : m_campos)
        campo->Mostrar({});
    for (const auto& [indice, memo] : m_memos)
        memo->Poner({});
    for (const auto& [nombre, combo] : m_combos)
        MostrarEn(*combo, {});
    for (const auto& [indice, marca] : m_marcas)
        marca->setChecked(false);
    for (const auto& combo : m_definicion.combos)
        MostrarDetalle(combo);
    m_fechas.clear();
    DarPorGuardado();
}

void HojaDeCampos::Mostrar(Recordset& rs) {
    for (const auto& c : m_definicion.campos)
        if (c.columna) {
            const auto valor = rs[c.columna].Leer();
            if (c.clase == ClaseCampo::Fecha)
                m_fechas[c.indice] = valor;
            Poner(c.indice, c.ceroVacio && EsCero(valor) ? std::string() : TextoDe(valor));
        }
    for (const auto& c : m_definicion.combos)
        if (c.columna)
            MostrarEn(Combo(c.nombre), QString::fromStdString(rs[c.columna].Texto()));
    for (const auto& m : m_definicion.marcas)
        if (m.columna)
            Marca(m.indice).setChecked(rs[m.columna].Numero() != 0);
    for (const auto& combo : m_definicion.combos)
        MostrarDetalle(combo);
    DarPorGuardado();
    for (const auto& c : m_definicion.combos)
        if (c.columna && Combo(c.nombre).currentText().isEmpty())
            if (const auto texto = rs[c.columna].Texto(); !texto.empty())
                m_fueraDeLista[&Combo(c.nombre)] = QString::fromStdString(texto);
    Reparar();
}

void HojaDeCampos::Escribir(Recordset& rs) const {
    for (const auto& c : m_definicion.campos) {
        if (!c.columna || c.clase == ClaseCampo::Codigo)
            continue;
        const auto texto = TextoStd(c.indice);
        const auto fecha = m_fechas.find(c.indice);
        if (fecha != m_fechas.end() && std::holds_alternative<Fecha>(fecha->second) &&
            Intacto(fecha->second, texto)) {
            if (rs[c.columna].Leer() != fecha->second)
                rs[c.columna] = fecha->second; // with the century that the text does not show
            continue;
        }
        if (!(c.ceroVacio && texto.empty() && EsCero(rs[c.columna].Leer())))
            EscribirTexto(rs[c.columna], texto, c.clase, c.siNoVale);
    }
    for (const auto& c : m_definicion.combos)
        if (c.columna)
            EscribirElegido(rs[c.columna], Combo(c.nombre).currentText().toStdString());
    for (const auto& m : m_definicion.marcas) {
        const bool puesta = Marca(m.indice).isChecked();
        if (m.columna && (rs[m.columna].Nulo() || (rs[m.columna].Numero() != 0) != puesta))
            rs[m.columna] = puesta ? m.si : 0;
    }
}

QStringList HojaDeCampos::Conservados(Recordset& rs) const {
    QStringList nombres;
    for (const auto& c : m_definicion.campos) {
        if (!c.columna || c.siNoVale != SiNoVale::Conserva)
            continue;
        const auto leido = rs[c.columna].Leer();
        if (const auto texto = TextoStd(c.indice);
            !Intacto(leido, texto) && ValorDe(texto, leido, c.clase, c.siNoVale) == leido)
            nombres << Campo(c.indice).accessibleName();
    }
    return nombres;
}

QMap<QString, QString> HojaDeCampos::Contenido() const {
    QMap<QString, QString> todo;
    for (const auto& c : m_definicion.campos)
        if (!c.derivado && Tiene(c.indice))
            todo[QString::number(c.indice)] = Texto(c.indice);
    for (const auto& [nombre, combo] : m_combos)
        todo[combo->objectName()] = combo->currentText();
    for (const auto& [indice, marca] : m_marcas)
        todo[marca->objectName()] = QString::number(marca->isChecked());
    return todo;
}

void HojaDeCampos::DarPorGuardado() {
    m_mostrado = Contenido();
    m_fueraDeLista.clear();
    for (const auto& [nombre, combo] : m_combos)
        m_decididos[combo] = combo->currentText();
}

bool HojaDeCampos::Cambiada(int excepto) const {
    auto ahora = Contenido();
    if (const auto clave = QString::number(excepto); ahora.contains(clave))
        ahora[clave] = m_mostrado.value(clave);
    return ahora != m_mostrado;
}

QLabel* HojaDeCampos::CrearPie(QWidget* padre) {
    m_pie = new QLabel(padre);
    m_pie->setObjectName(QStringLiteral("Reparos"));
    m_pie->setWordWrap(true);
    auto sitio = m_pie->sizePolicy();
    sitio.setRetainSizeWhenHidden(true); // what stands above it does not jump
    m_pie->setSizePolicy(sitio);
    m_pie->hide();
    return m_pie;
}

void HojaDeCampos::Reparar() {
    if (!m_pie)
        return;
    QStringList reparos;
    for (const auto& c : m_definicion.campos)
        if (const auto it = m_campos.find(c.indice); it != m_campos.end() && !it->second->Señal().isEmpty())
            reparos << it->second->accessibleName() + QStringLiteral(" «") + it->second->text() +
                           QStringLiteral("»: ") + it->second->Señal();
    for (const auto& c : m_definicion.combos) {
        const auto& combo = Combo(c.nombre);
        if (const auto it = m_fueraDeLista.find(&combo);
            it != m_fueraDeLista.end() && combo.currentText().isEmpty())
            reparos << QStringLiteral("%1: «%2» no está en la lista, y al guardar se perderá")
                           .arg(combo.accessibleName(), it->second);
    }
    m_pie->setText(reparos.join(QStringLiteral(". ")));
    m_pie->setVisible(!reparos.isEmpty());
}

void HojaDeCampos::Señalar(int indice, const std::string& reparo) {
    if (auto& campo = Campo(indice); !campo.NoEsFecha())
        campo.Señalar(QString::fromStdString(reparo));
}

std::string HojaDeCampos::TextoStd(int indice) const {
    const auto memo = m_memos.find(indice);
    return memo != m_memos.end() ? memo->second->Texto() : Campo(indice).text().toStdString();
}

void HojaDeCampos::Poner(int indice, const std::string& texto) {
    if (const auto memo = m_memos.find(indice); memo != m_memos.end())
        memo->second->Poner(texto);
    else
        Campo(indice).Mostrar(QString::fromStdString(texto));
}

void HojaDeCampos::PonerFecha(int indice, std::optional<Fecha> fecha) {
    m_fechas[indice] = fecha ? Valor(*fecha) : Valor();
    Poner(indice, TextoDe(m_fechas[indice]));
}

std::optional<Fecha> HojaDeCampos::FechaDe(int indice) const {
    const auto texto = TextoStd(indice);
    if (const auto leida = m_fechas.find(indice); leida != m_fechas.end() && Intacto(leida->second, texto))
        if (const auto* fecha = std::get_if<Fecha>(&leida->second))
            return *fecha;
    return FechaDeTexto(texto);
}

void HojaDeCampos::Elegir(std::string_view nombre, const std::string& texto) {
    MostrarEn(Combo(nombre), QString::fromStdString(texto));
}

int HojaDeCampos::AnchuraDe(const char* columna) const {
    const auto* tabla = CatalogoCanonico(ClaseDeBase::Principal).Buscar(m_definicion.tabla);
    const int lugar = tabla ? tabla->Buscar(columna) : -1;
    return lugar < 0 ? 0 : tabla->columnas[static_cast<std::size_t>(lugar)].anchura;
}

// --- keys and focus

void HojaDeCampos::Editar() {
    if (alEditar)
        alEditar();
}

void HojaDeCampos::VigilarDecision(QComboBox& combo, const QEvent& evento) {
    if (evento.type() == QEvent::MouseButtonPress) {
        m_pasando = nullptr;
    } else if (evento.type() == QEvent::Wheel) {
        m_pasando = &combo;
    } else if (evento.type() == QEvent::KeyPress) {
        const auto& tecla = static_cast<const QKeyEvent&>(evento);
        const bool abre = tecla.key() == Qt::Key_F4 || tecla.key() == Qt::Key_Space ||
                          (tecla.key() == Qt::Key_Down && tecla.modifiers().testFlag(Qt::AltModifier));
        const bool intro = tecla.key() == Qt::Key_Return || tecla.key() == Qt::Key_Enter;
        m_pasando = abre || intro ? nullptr : &combo;
        if (intro)
            Decidir(combo);
    } else if (evento.type() == QEvent::FocusOut &&
               static_cast<const QFocusEvent&>(evento).reason() != Qt::PopupFocusReason) {
        m_pasando = nullptr;
        Decidir(combo);
    }
}

void HojaDeCampos::Decidir(QComboBox& combo) {
    auto& decidido = m_decididos[&combo];
    if (decidido == combo.currentText())
        return;
    decidido = combo.currentText();
    if (alDecidir)
        alDecidir(combo);
    decidido = combo.currentText(); // the owner may have put the former item back
}

void HojaDeCampos::Asentar() {
    for (const auto& [nombre, combo] : m_combos)
        Decidir(*combo);
    auto* foco = m_ventana->window()->focusWidget();
    const auto esFoco = [&](const auto& par) { return par.second == foco; };
    if (alDejar && (std::any_of(m_campos.begin(), m_campos.end(), esFoco) ||
                    std::any_of(m_memos.begin(), m_memos.end(), esFoco)))
        alDejar(*foco);
}

bool HojaDeCampos::Tecla(QWidget& campo, const QKeyEvent& tecla) {
    const bool intro = tecla.key() == Qt::Key_Return || tecla.key() == Qt::Key_Enter;
    if (const auto* memo = qobject_cast<QPlainTextEdit*>(&campo)) {
        if (!memo->isReadOnly() && (intro || EsDeEscritura(tecla)))
            Editar(); // Enter is a line break there
        return false;
    }
    if (intro) {
        if (!alConfirmar || !alConfirmar(campo))
            PasarAlSiguiente(*m_ventana, trasElUltimo);
        return true;
    }
    // A code is typed to go to its record, which changes nothing.
    const auto* linea = dynamic_cast<const CampoTexto*>(&campo);
    if (linea && linea->Clase() != ClaseCampo::Codigo && !linea->isReadOnly() && EsDeEscritura(tecla))
        Editar();
    return false;
}

bool HojaDeCampos::eventFilter(QObject* objeto, QEvent* evento) {
    if (EsRuedaAjena(objeto, *evento))
        return true;
    if (!objeto->isWidgetType())
        return false;
    auto& campo = static_cast<QWidget&>(*objeto);
    if (auto* combo = qobject_cast<QComboBox*>(objeto))
        VigilarDecision(*combo, *evento);
    if (evento->type() == QEvent::KeyPress)
        return Tecla(campo, static_cast<QKeyEvent&>(*evento));
    if (evento->type() == QEvent::FocusOut && alDejar) {
        const auto razon = static_cast<QFocusEvent&>(*evento).reason();
        if (razon != Qt::ActiveWindowFocusReason && razon != Qt::PopupFocusReason &&
            razon != Qt::MenuBarFocusReason)
            alDejar(campo);
    }
    return false;
}

} // namespace pastorix
