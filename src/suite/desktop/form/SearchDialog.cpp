#include "suite/desktop/form/SearchDialog.h"

#include "suite/desktop/look/Icons.h"
#include "suite/desktop/look/Text.h"

#include <QAction>
#include <QCoreApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTableView>

#include <algorithm>

namespace suite::desktop {

SearchDialog::SearchDialog(const host::TZTLookupEx& lookup, const host::TDataSet& search, QWidget* parent)
    : QDialog(parent), rows_(lookup, search, nullptr), filter_(new QLineEdit(this)), table_(new QTableView(this)),
      count_(new QLabel(this)), ok_(new QPushButton(QStringLiteral("&OK"), this)), total_(search.RecordCount()) {
    setWindowTitle(lookup.Definicao().Titulo.empty() ? QStringLiteral("Pesquisa")
                                                     : fromUtf8(lookup.Definicao().Titulo));
    arrange(lookup);
    hadMarks_ = !rows_.marked().empty();
    connect(filter_, &QLineEdit::textChanged, this, &SearchDialog::filter);
    connect(&rows_, &LookupRows::marksChanged, this, &SearchDialog::count);
    connect(table_, &QTableView::doubleClicked, this, [this](const QModelIndex& index) {
        if (!byMarks())
            accept();
        else if (index.column() > 0) // the mark's own column has taken both clicks
            rows_.toggle(index.row());
    });
    // The record in the field is the current one; without one, the first.
    int row = 0;
    for (std::size_t i = 0; lookup.GetID() > 0 && i < total_; ++i) {
        const auto& key = search.Colunas()[search.FindField(lookup.Definicao().CampoChave)->Indice()];
        if (TextoDe(key.Valor(search.LinhaDe(i))) == std::to_string(lookup.GetID()))
            row = static_cast<int>(i);
    }
    table_->setCurrentIndex(rows_.index(row, 0));
    table_->scrollTo(table_->currentIndex(), QAbstractItemView::PositionAtCenter);
    count();
    filter_->setFocus();
}

void SearchDialog::arrange(const host::TZTLookupEx& lookup) {
    filter_->setObjectName(QStringLiteral("Filtro"));
    filter_->setAccessibleName(QStringLiteral("Filtro"));
    filter_->setAccessibleDescription(QStringLiteral("Mostra os registros que contêm o texto"));
    filter_->setPlaceholderText(QStringLiteral("Digite para filtrar"));
    filter_->setClearButtonEnabled(true);
    filter_->addAction(icon(Symbol::Search), QLineEdit::LeadingPosition);
    filter_->installEventFilter(this);
    table_->setObjectName(QStringLiteral("Registros"));
    table_->setAccessibleName(QStringLiteral("Registros"));
    table_->setModel(&rows_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setAlternatingRowColors(true);
    table_->setShowGrid(false);
    table_->setTabKeyNavigation(false);
    table_->setWordWrap(false);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    table_->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table_->horizontalHeader()->setHighlightSections(false);
    table_->installEventFilter(this);
    sizeColumns();

    auto* whole = new QVBoxLayout(this);
    whole->addWidget(filter_);
    whole->addWidget(table_, 1);
    auto* foot = new QHBoxLayout;
    if (lookup.Definicao().MultiSelecao) {
        auto* all = new QPushButton(QStringLiteral("&Marcar todos"), this);
        auto* none = new QPushButton(QStringLiteral("&Desmarcar todos"), this);
        connect(all, &QPushButton::clicked, this, [this] { rows_.markShown(true); });
        connect(none, &QPushButton::clicked, this, [this] { rows_.markShown(false); });
        for (auto* button : {all, none}) {
            button->setAutoDefault(false);
            foot->addWidget(button);
        }
    }
    count_->setObjectName(QStringLiteral("Contagem"));
    foot->addWidget(count_);
    foot->addStretch();
    auto* leave = new QPushButton(QStringLiteral("&Sair [Esc]"), this);
    leave->setAutoDefault(false);
    ok_->setDefault(true);
    connect(ok_, &QPushButton::clicked, this, &SearchDialog::accept);
    connect(leave, &QPushButton::clicked, this, &SearchDialog::reject);
    foot->addWidget(ok_);
    foot->addWidget(leave);
    whole->addLayout(foot);
}

// By a sample of the rows: thousands would take long to measure.
void SearchDialog::sizeColumns() {
    auto* header = table_->horizontalHeader();
    constexpr int Sample = 200;
    constexpr int Widest = 420;
    constexpr int Tall = 460;
    header->setResizeContentsPrecision(Sample);
    table_->resizeColumnsToContents();
    int width = 0;
    for (int column = 0; column < rows_.columnCount(); ++column) {
        table_->setColumnWidth(column, std::min(table_->columnWidth(column) + 12, Widest));
        width += table_->columnWidth(column);
    }
    header->setStretchLastSection(true);
    const auto room = screen()->availableSize() * 9 / 10;
    constexpr int Least = 640;
    const int frame = table_->verticalScrollBar()->sizeHint().width() + 40;
    resize(std::min(std::max(width + frame, Least), room.width()), std::min(Tall, room.height()));
}

void SearchDialog::filter(const QString& text) {
    const auto position = currentPosition();
    rows_.setFilter(text);
    const int row = std::max(0, rows_.rowOf(position));
    table_->setCurrentIndex(rows_.index(row, 0));
    count();
}

std::size_t SearchDialog::currentPosition() const {
    const auto current = table_->currentIndex();
    return current.isValid() ? rows_.position(current.row()) : 0;
}

void SearchDialog::count() {
    const auto shown = static_cast<std::size_t>(rows_.rowCount());
    QString text = total_ == 1 ? QStringLiteral("1 registro") : QStringLiteral("%1 registros").arg(total_);
    if (total_ == 0)
        text = QStringLiteral("Nenhum registro");
    else if (shown < total_)
        text = QStringLiteral("%1 de ").arg(shown) + text;
    if (rows_.marks())
        text += QStringLiteral(", %1 marcados").arg(rows_.marked().size());
    count_->setText(text);
    ok_->setEnabled(byMarks() || shown > 0);
}

void SearchDialog::accept() {
    if (byMarks() || currentPosition() > 0)
        QDialog::accept();
}

bool SearchDialog::byMarks() const { return hadMarks_ || !rows_.marked().empty(); }

void SearchDialog::toggleCurrent() {
    if (rows_.marks() && table_->currentIndex().isValid())
        rows_.toggle(table_->currentIndex().row());
}

bool SearchDialog::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress)
        return keyPressed(watched == filter_, *static_cast<QKeyEvent*>(event));
    return QDialog::eventFilter(watched, event);
}

bool SearchDialog::keyPressed(bool inFilter, const QKeyEvent& event) {
    const bool control = event.modifiers() == Qt::ControlModifier;
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        accept();
        return true;
    case Qt::Key_Space:
        if (!rows_.marks() || (inFilter && !control && !filter_->text().isEmpty()))
            return false;
        toggleCurrent();
        return true;
    case Qt::Key_A:
        if (!control || !rows_.marks())
            return false;
        rows_.markShown(true);
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        if (inFilter) {
            table_->setFocus();
            QCoreApplication::sendEvent(table_, const_cast<QKeyEvent*>(&event)); // the table's own move
        }
        return inFilter;
    default:
        break;
    }
    // What is typed over the rows goes on in the filter.
    const bool text =
        !event.text().isEmpty() && event.text().front().isPrint() && !(event.modifiers() & Qt::AltModifier);
    if (inFilter || !(text || event.key() == Qt::Key_Backspace))
        return false;
    filter_->setFocus();
    filter_->end(false);
    QCoreApplication::sendEvent(filter_, const_cast<QKeyEvent*>(&event));
    return true;
}

} // namespace suite::desktop
