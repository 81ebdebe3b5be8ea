// The module that makes pictures for a program without windows: Qt on a display that is not there.
#include <cstdio>
#include <cstdlib>

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>

#include "platform/qt/FabbricaQt.h"

namespace orvane {
namespace {

/// With the application that fonts need.
class FabbricaSenzaSchermo : public FabbricaQt {
public:
    FabbricaSenzaSchermo() {
        // The face of the windows, where the machine has it.
        const QString faccia = QStringLiteral("Inter");
        if (QFontDatabase::families().contains(faccia))
            QGuiApplication::setFont(QFont(faccia));
    }

private:
    int quanteParole_ = 1;
    char nome_[7] = "orvane";
    char* parole_[2] = {nome_, nullptr};
    QGuiApplication applicazione_{quanteParole_, parole_};
};

} // namespace
} // namespace orvane

/// What the program looks for by name.
extern "C" orvane::FabbricaQuadri* CreaFabbricaQuadri() {
    // A machine without a desktop lacks what Qt would like to find; only what fails is worth a
    // line.
    qInstallMessageHandler([](QtMsgType genere, const QMessageLogContext&, const QString& testo) {
        if (genere == QtCriticalMsg || genere == QtFatalMsg)
            std::fprintf(stderr, "orvane: %s\n", qPrintable(testo));
    });
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    return new orvane::FabbricaSenzaSchermo;
}
