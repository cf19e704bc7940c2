#include "prueba.h"

#include "store/LocaleNumerico.h"

#ifdef QT_WIDGETS_LIB
#include <QApplication>
using Aplicacion = QApplication;
#else
#include <QCoreApplication>
using Aplicacion = QCoreApplication;
#endif
#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstdio>
#include <utility>

namespace prueba {
std::vector<Fabrica>& Lista() {
    static std::vector<Fabrica> lista;
    return lista;
}

static QStringList& Esperados() {
    static QStringList lista;
    return lista;
}
void EsperarAviso(const char* trozo) {
    Esperados() << QString::fromUtf8(trozo);
}
bool PrimeraFila() {
    static std::pair<const QObject*, QByteArray> ultima;
    const std::pair<const QObject*, QByteArray> esta{QTest::testObject(), QTest::currentTestFunction()};
    return std::exchange(ultima, esta) != esta;
}
} // namespace prueba

// An unexpected warning of Qt (a missing signal, a painter on nothing, a layout on top of another) is a fault that nobody would
// see otherwise: it fails the run.
static int avisosInesperados = 0;
static QtMessageHandler manejadorAnterior = nullptr;

static void Manejar(QtMsgType tipo, const QMessageLogContext& contexto, const QString& texto) {
    if (tipo == QtWarningMsg || tipo == QtCriticalMsg) {
        bool esperado =
            texto.contains(QLatin1String("propagateSizeHints")) || // the offscreen platform's own remarks
            texto.contains(QLatin1String("This plugin does not support"));
        for (const QString& trozo : prueba::Esperados())
            esperado = esperado || texto.contains(trozo);
        if (!esperado) {
            ++avisosInesperados;
            std::fprintf(stderr, "unexpected warning: %s\n", qPrintable(texto));
        }
    }
    if (manejadorAnterior)
        manejadorAnterior(tipo, contexto, texto);
}

int main(int argc, char** argv) {
    QTemporaryDir casa;
    qputenv("HOME", casa.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", (casa.path() + QStringLiteral("/config")).toUtf8());
    qputenv("XDG_RUNTIME_DIR", casa.path().toUtf8());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    Aplicacion app(argc, argv);
    pastorix::FijarLocaleNumerico();
    manejadorAnterior = qInstallMessageHandler(Manejar);

    // Without the crash handler of the test library, which waits for a debugger that may never answer.
    const QStringList argumentos = QStringList(Aplicacion::arguments()) << QStringLiteral("-nocrashhandler");
    int fallos = 0;
    for (const auto& fabrica : prueba::Lista()) {
        const auto objeto = fabrica();
        fallos += QTest::qExec(objeto.get(), argumentos);
    }
    if (avisosInesperados > 0)
        std::fprintf(stderr, "%d unexpected warnings\n", avisosInesperados);
    return fallos + avisosInesperados == 0 ? 0 : 1;
}
