// The small window that says that a file is being made.
#pragma once

#include <memory>

#include <QDialog>

#include "report/ConvertiTestoInPDFRTF.h"

namespace orvane {

/// Over `padre`, whose pointer is busy meanwhile. Nothing else takes clicks while it is up.
class AttesaFile : public VistaAttesa {
public:
    explicit AttesaFile(QWidget* padre) : padre_(padre) {}
    ~AttesaFile() override { Chiudi(); }

    void MostraAttesa(const std::string& testo) override;
    void ChiudiAttesa() override { Chiudi(); }

private:
    void Chiudi();

    QWidget* padre_;
    std::unique_ptr<QDialog> finestra_;
};

} // namespace orvane
