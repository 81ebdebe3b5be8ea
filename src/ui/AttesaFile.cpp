#include "ui/AttesaFile.h"

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/Testi.h"

namespace orvane {
namespace {

/// It goes when its work is done, and not before.
class FinestraAttesa : public QDialog {
public:
    using QDialog::QDialog;
    void reject() override {}
};

} // namespace

void AttesaFile::MostraAttesa(const std::string& testo) {
    Chiudi();
    finestra_ = std::make_unique<FinestraAttesa>(padre_, Qt::Dialog | Qt::FramelessWindowHint);
    finestra_->setObjectName(QStringLiteral("FrmAttesaFile"));
    finestra_->setWindowModality(Qt::ApplicationModal);
    auto* parole = new QLabel(Q(testo).replace(QLatin1Char('\r'), QLatin1Char('\n')));
    parole->setObjectName(QStringLiteral("LBAttesaFile"));
    parole->setAlignment(Qt::AlignCenter);
    parole->setMargin(26);
    auto* colonna = new QVBoxLayout(finestra_.get());
    colonna->setContentsMargins(1, 1, 1, 1);
    colonna->addWidget(parole);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    finestra_->show();
}

void AttesaFile::Chiudi() {
    if (!finestra_)
        return;
    QApplication::restoreOverrideCursor();
    finestra_.reset();
}

} // namespace orvane
