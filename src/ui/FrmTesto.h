// A plain editor for the text files of the data tree: header of reports, comment of a test.
#pragma once

#include <string>

#include <QDialog>
#include <QLabel>
#include <QPlainTextEdit>

#include "data/Scrivania.h"

namespace orvane {

class FrmTesto : public QDialog {
    Q_OBJECT
public:
    /// `testo`: what `percorso` holds now. OK writes it there, and stays open if that fails.
    FrmTesto(const Scrivania& scrivania, const std::string& percorso, const QString& titolo,
             const std::string& testo, QWidget* padre);

    void accept() override;
    /// Asks first where something was changed.
    void reject() override;

private:
    QString Testo() const;
    void MostraNota();

    const Scrivania& scrivania_;
    std::string percorso_;
    QPlainTextEdit* testo_;
    QLabel* nota_;
};

} // namespace orvane
