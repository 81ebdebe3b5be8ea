#include "app/FabbricaDifferita.h"

#include <cstdlib>

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>

namespace orvane {
namespace {

std::unique_ptr<QGuiApplication> AvviaQt() {
    static int quanti = 1;
    static char nome[] = "orvane";
    static char* parole[] = {nome, nullptr};
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    auto applicazione = std::make_unique<QGuiApplication>(quanti, parole);
    // The face of the windows, where the machine has it.
    const QString faccia = QStringLiteral("Inter");
    if (QFontDatabase::families().contains(faccia))
        QGuiApplication::setFont(QFont(faccia));
    return applicazione;
}

} // namespace

FabbricaDifferita::FabbricaDifferita() = default;
FabbricaDifferita::~FabbricaDifferita() = default;

std::vector<uint8_t> FabbricaDifferita::Dipingi(int larghezza, int altezza, FormatoImmagine formato,
                                                const std::function<void(Superficie&)>& disegna) {
    if (!applicazione_)
        applicazione_ = AvviaQt();
    return fabbrica_.Dipingi(larghezza, altezza, formato, disegna);
}

} // namespace orvane
