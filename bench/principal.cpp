#include "store/LocaleNumerico.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <cstdio>
#include <map>
#include <string>

namespace {

// Prints as usual, and at the end the ratio of every pair "...Almacen" to "...Directo".
class Informador : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& corridas) override {
        ConsoleReporter::ReportRuns(corridas);
        for (const auto& c : corridas)
            if (c.run_type == Run::RT_Iteration)
                m_tiempos[c.run_name.function_name] = c.GetAdjustedRealTime();
    }
    void Finalize() override {
        ConsoleReporter::Finalize();
        for (const auto& [nombre, tiempo] : m_tiempos) {
            const auto cola = nombre.rfind("Almacen");
            if (cola == std::string::npos || cola + 7 != nombre.size())
                continue;
            const auto directo = m_tiempos.find(nombre.substr(0, cola) + "Directo");
            if (directo != m_tiempos.end())
                std::printf("%-20s %.2f times the bare C API\n", nombre.c_str(), tiempo / directo->second);
        }
    }

private:
    std::map<std::string, double> m_tiempos;
};

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication aplicacion(argc, argv);
    pastorix::FijarLocaleNumerico();
    benchmark::Initialize(&argc, argv);
    Informador informador;
    benchmark::RunSpecifiedBenchmarks(&informador);
    return 0;
}
