// `FrmRemoteLink`: which link, which port.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QRadioButton>

#include "console/RemoteLink.h"
#include "data/Scrivania.h"
#include "link/LinkPort.h"

namespace orvane {

class FrmRemoteLink : public QDialog {
    Q_OBJECT
public:
    /// `fisso`: what the program was started with in place of the choice; empty for nothing.
    FrmRemoteLink(Scrivania& scrivania, LinkPort& link, CatalogoPorte& catalogo,
                  const QString& fisso, QWidget* padre);

    void accept() override;
    /// Cancel, Escape and the closed window alike.
    void reject() override;

Q_SIGNALS:
    /// Link or port is another one, at once.
    void Cambiato();

private:
    QWidget* CreaScelta(const QString& fisso);
    void MostraQuadro();
    void Aggiorna();

    Scrivania& scrivania_;
    LinkPort& link_;
    QuadroRemoteLink quadro_;
    QRadioButton* seriale_;
    QRadioButton* usb_;
    QComboBox* porte_;
};

} // namespace orvane
