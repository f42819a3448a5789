#include "suite/desktop/chart/ChartPane.h"

#include "base/ArquivoInteiro.h"
#include "base/Falhas.h"
#include "suite/desktop/chart/ChartPainter.h"
#include "suite/desktop/grid/GridPane.h"
#include "suite/desktop/look/CellColours.h"
#include "suite/desktop/look/Text.h"
#include "suite/desktop/shell/Failures.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QPushButton>

#include <system_error>

namespace suite::desktop {

namespace {

constexpr QSize PictureSize(1200, 800);

} // namespace

class ChartPane::Canvas : public QWidget {
  public:
    explicit Canvas(ChartPane& owner) : QWidget(&owner), owner_(owner) {
        setMinimumSize(370, 200);
        setAccessibleName("Gráfico");
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        paintChart(painter, rect(), owner_.data_, palette());
    }

  private:
    ChartPane& owner_;
};

ChartPane::ChartPane(QWidget* parent)
    : QWidget(parent), canvas_(new Canvas(*this)), save_(new QPushButton("Salvar &imagem...", this)),
      copy_(new QPushButton("&Copiar imagem", this)) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(canvas_, 1);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(copy_);
    row->addWidget(save_);
    column->addLayout(row);
    connect(save_, &QPushButton::clicked, this, &ChartPane::askAndSave);
    connect(copy_, &QPushButton::clicked, this, &ChartPane::copy);
    update();
}

void ChartPane::setPane(GridPane* pane) {
    if (pane == pane_)
        return;
    if (pane_)
        pane_->disconnect(this);
    pane_ = pane;
    if (pane_) {
        connect(pane_, &GridPane::linesChanged, this, &ChartPane::update);
        connect(pane_, &GridPane::currentLineChanged, this, &ChartPane::update);
    }
    update();
}

void ChartPane::update() {
    data_ = pane_ ? table::chartOf(pane_->table(), pane_->currentLine())
                  : table::ChartData{"Não há linhas para o gráfico.", {}, false};
    canvas_->setAccessibleDescription(fromUtf8(data_.title));
    save_->setEnabled(!data_.categories.empty());
    copy_->setEnabled(save_->isEnabled());
    canvas_->update();
}

void ChartPane::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), palette().color(QPalette::Window)); }

QImage ChartPane::picture() const {
    QImage picture(PictureSize, QImage::Format_RGB32);
    QPainter painter(&picture);
    paintChart(painter, picture.rect(), data_, paperPalette());
    return picture;
}

bool ChartPane::writePdf(const QString& file) const {
    QPdfWriter writer(file);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageOrientation(QPageLayout::Landscape);
    writer.setResolution(96);
    QPainter painter;
    if (!painter.begin(&writer))
        return false;
    paintChart(painter, QRectF(0, 0, writer.width(), writer.height()), data_, paperPalette());
    return painter.end();
}

void ChartPane::save(const QString& file) const {
    const bool pdf = file.endsWith(".pdf", Qt::CaseInsensitive);
    if (!pdf && !file.endsWith(".png", Qt::CaseInsensitive))
        throw base::TFalha("O nome do arquivo do gráfico deve terminar em .png ou .pdf.");
    base::GravarArquivoInteiro(toUtf8(file), [&](const std::filesystem::path& aside) {
        const auto name = fromUtf8(aside.string());
        if (!(pdf ? writePdf(name) : picture().save(name, "PNG")))
            throw std::system_error(EIO, std::generic_category());
    });
}

void ChartPane::askAndSave() {
    const auto file = QFileDialog::getSaveFileName(window(), "Salvar gráfico", "grafico.png",
                                                   "Imagem (*.png);;Documento PDF (*.pdf)");
    if (file.isEmpty())
        return;
    try {
        save(file);
    } catch (const base::TFalha& failure) {
        showFailure(failure, {}, window());
    }
}

void ChartPane::copy() { QApplication::clipboard()->setImage(picture()); }

} // namespace suite::desktop
