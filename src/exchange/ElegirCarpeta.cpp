#include "exchange/ElegirCarpeta.h"

#include "frame/Iconos.h"

#include <QComboBox>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>
#include <QStorageInfo>
#include <QTimer>
#include <QVBoxLayout>

namespace pastorix {

namespace {

// Where people's files and sticks are, by path; what else is mounted is the system's own business.
QList<std::pair<QString, QString>> Unidades() {
    QList<std::pair<QString, QString>> lista;
#ifdef _WIN32
    for (const auto& d : QDir::drives())
        lista.append({QDir::toNativeSeparators(d.path()), d.path()});
#else
    lista.append({QStringLiteral("Carpeta personal"), QDir::homePath()});
    for (const auto& v : QStorageInfo::mountedVolumes()) {
        const auto raiz = v.rootPath();
        for (const char* donde : {"/media/", "/run/media/", "/mnt/", "/Volumes/"})
            if (raiz.startsWith(QLatin1String(donde)))
                lista.append({v.displayName(), raiz});
    }
    lista.append({QStringLiteral("Todo el equipo"), QDir::rootPath()});
#endif
    return lista;
}

} // namespace

ElegirCarpeta::ElegirCarpeta(QWidget* padre)
    : QWidget(padre)
    , m_unidades(new QComboBox(this))
    , m_lista(new QListWidget(this))
    , m_vigia(new QTimer(this))
    , m_carpeta(QDir::homePath()) {
    m_unidades->setObjectName(QStringLiteral("Drive1"));
    m_lista->setObjectName(QStringLiteral("Dir1"));
    m_unidades->setAccessibleName(QStringLiteral("Unidad"));
    m_lista->setAccessibleName(QStringLiteral("Carpeta"));
    m_lista->setUniformItemSizes(true);
    auto* rotuloUnidad = new QLabel(QStringLiteral("&Unidad:"), this);
    rotuloUnidad->setBuddy(m_unidades);
    auto* rotuloCarpeta = new QLabel(QStringLiteral("Car&peta (Intro o doble clic para entrar):"), this);
    rotuloCarpeta->setBuddy(m_lista);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(0, 0, 0, 0);
    for (QWidget* w : std::initializer_list<QWidget*>{rotuloUnidad, m_unidades, rotuloCarpeta, m_lista})
        todo->addWidget(w);
    connect(m_unidades, &QComboBox::activated, this,
            [this](int i) { PonerCarpeta(m_unidades->itemData(i).toString()); });
    connect(m_lista, &QListWidget::itemDoubleClicked, this,
            [this](QListWidgetItem* item) { Entrar(m_lista->row(item)); });
    m_lista->installEventFilter(this);
    m_vigia->setInterval(2000);
    connect(m_vigia, &QTimer::timeout, this, &ElegirCarpeta::LlenarUnidades);
    LlenarUnidades();
    LlenarCarpetas();
}

bool ElegirCarpeta::PonerCarpeta(const QString& carpeta) {
    const auto limpia = QDir::cleanPath(QDir(carpeta).absolutePath());
    if (carpeta.isEmpty() || !QDir(limpia).exists())
        return false;
    m_carpeta = limpia;
    LlenarUnidades();
    LlenarCarpetas();
    Q_EMIT Cambiada();
    return true;
}

void ElegirCarpeta::LlenarUnidades() {
    const QSignalBlocker callada(m_unidades);
    const auto unidades = Unidades();
    bool igual = unidades.size() == m_unidades->count();
    for (qsizetype i = 0; igual && i < unidades.size(); ++i)
        igual = m_unidades->itemData(static_cast<int>(i)).toString() == unidades[i].second;
    if (!igual) {
        m_unidades->clear();
        for (const auto& [nombre, raiz] : unidades)
            m_unidades->addItem(nombre, raiz);
    }
    int mejor = -1; // the drive that the folder lies on: the longest path above it
    for (int i = 0; i < m_unidades->count(); ++i) {
        const auto raiz = m_unidades->itemData(i).toString();
        const auto borde = raiz.endsWith(QLatin1Char('/')) ? raiz : raiz + QLatin1Char('/');
        if ((m_carpeta + QLatin1Char('/')).startsWith(borde) &&
            (mejor < 0 || raiz.size() > m_unidades->itemData(mejor).toString().size()))
            mejor = i;
    }
    m_unidades->setCurrentIndex(mejor);
}

void ElegirCarpeta::LlenarCarpetas() {
    m_lista->clear();
    const QDir carpeta(m_carpeta);
    m_lista->addItem(carpeta.isRoot() ? QDir::toNativeSeparators(m_carpeta)
                                      : QDir::toNativeSeparators(m_carpeta) + QStringLiteral("  ↑"));
    m_lista->item(0)->setToolTip(QStringLiteral("Sube a la carpeta que la contiene"));
    for (const auto& nombre : carpeta.entryList(QDir::Dirs | QDir::NoDotAndDotDot,
                                                QDir::Name | QDir::IgnoreCase | QDir::LocaleAware))
        m_lista->addItem(new QListWidgetItem(Icono("carpeta"), nombre));
    m_lista->setCurrentRow(0); // screen readers want a current line
}

void ElegirCarpeta::Entrar(int fila) {
    QDir carpeta(m_carpeta);
    if (fila == 0 ? carpeta.cdUp() : carpeta.cd(m_lista->item(fila)->text()))
        PonerCarpeta(carpeta.path());
}

// Enter goes into a folder and no further: the form's default button must not hear of it.
bool ElegirCarpeta::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter || tecla == Qt::Key_Backspace) {
            Entrar(tecla == Qt::Key_Backspace ? 0 : m_lista->currentRow());
            return true;
        }
    }
    return QWidget::eventFilter(objeto, evento);
}

void ElegirCarpeta::showEvent(QShowEvent* evento) {
    QWidget::showEvent(evento);
    m_vigia->start();
}

void ElegirCarpeta::hideEvent(QHideEvent* evento) {
    QWidget::hideEvent(evento);
    m_vigia->stop();
}

} // namespace pastorix
