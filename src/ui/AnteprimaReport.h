// The pages of a report before it is saved.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

#include "ui/FoglioQt.h"

namespace orvane {

class AnteprimaReport : public QDialog {
    Q_OBJECT
public:
    AnteprimaReport(PagineReport pagine, const QString& misura, QWidget* padre);

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    QLayout* CreaBarra();
    void Vai(int pagina, bool inFondo = false);
    /// A view further, and at its end a page.
    void Sfoglia(int verso);
    void Ingrandisci(int verso);
    void AggiornaScala();

    PagineReport pagine_;
    FoglioQt* foglio_;
    QScrollArea* area_;
    QComboBox* CBXZoom_ = nullptr;
    QLabel* LBPagina_ = nullptr;
    QPushButton* CMBPrima_ = nullptr;
    QPushButton* CMBDopo_ = nullptr;
    int pagina_ = 0;
};

} // namespace orvane
