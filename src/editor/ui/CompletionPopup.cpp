// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ui/CompletionPopup.h"

#include "widgets/Controls.h"

#include <QAbstractListModel>
#include <QAccessible>
#include <QLabel>
#include <QListView>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace Quillbox {

/// The words of the list; a screen reader says the help line with each.
class CompletionModel final : public QAbstractListModel {
  public:
    using QAbstractListModel::QAbstractListModel;

    Completions Words;

    void SetWords(Completions words) {
        beginResetModel();
        Words = std::move(words);
        endResetModel();
    }

    int rowCount(const QModelIndex &parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(Words.size());
    }

    QVariant data(const QModelIndex &index, int role) const override {
        const Completion &completion = Words.at(static_cast<std::size_t>(index.row()));
        if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
            return completion.Word;
        return role == Qt::AccessibleDescriptionRole ? completion.Help : QVariant();
    }
};

namespace {

constexpr int MostRows = 10;
constexpr int FewestRows = 2;
constexpr int WidthInCharacters = 52;
constexpr int HelpLines = 2;
constexpr int HelpMargin = 5;
constexpr char16_t ZeroWidthSpace = 0x200B;

/// Lists of parameters are written without blanks; they may go on in a new line behind each comma.
QString MayBreak(QString help) {
    return help.replace(QChar(u','), QStringLiteral(",") + QChar(ZeroWidthSpace));
}

} // namespace

CompletionPopup::CompletionPopup(QWidget *parent)
    : QFrame(parent, Qt::ToolTip | Qt::FramelessWindowHint)
    , Model_(new CompletionModel(this))
    , List_(new QListView(this))
    , Help_(new QLabel(this)) {
    setObjectName(QStringLiteral("lstCompletar"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::StyledPanel);
    Build();
    connect(List_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex &current) { ShowHelp(current.row()); });
    connect(List_, &QListView::clicked, this, &CompletionPopup::WordChosen);
}

void CompletionPopup::Build() {
    List_->setObjectName(QStringLiteral("lstPalabras"));
    List_->setAccessibleName(QStringLiteral("Palabras que completan lo escrito"));
    List_->setModel(Model_);
    List_->setFocusPolicy(Qt::NoFocus);
    List_->setFrameShape(QFrame::NoFrame);
    List_->setUniformItemSizes(true);
    List_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    List_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // It has no keyboard focus, but its current word is what the keys act on.
    ShowSelectionAsActive(*List_);
    Help_->setObjectName(QStringLiteral("lblAyudaPalabra"));
    Help_->setTextFormat(Qt::PlainText);
    Help_->setWordWrap(true);
    Help_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    Help_->setMargin(HelpMargin);
    Help_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    Help_->setFixedHeight(Help_->fontMetrics().lineSpacing() * HelpLines + 2 * HelpMargin);
    setFixedWidth(Help_->fontMetrics().averageCharWidth() * WidthInCharacters);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(List_);
    auto *divider = new QFrame(this);
    divider->setFrameShape(QFrame::HLine);
    layout->addWidget(divider);
    layout->addWidget(Help_);
}

void CompletionPopup::SetWords(Completions words) {
    Model_->SetWords(std::move(words));
    FitToWords();
    List_->setCurrentIndex(Model_->index(0));
}

void CompletionPopup::SetWordFont(const QFont &font) { List_->setFont(font); }

/// As high as its words need.
void CompletionPopup::FitToWords() { ShowRows(std::min(Model_->rowCount(), MostRows)); }

void CompletionPopup::ShowRows(int rows) {
    List_->setFixedHeight(RowHeight() * rows);
    adjustSize();
}

int CompletionPopup::RowHeight() const { return std::max(List_->sizeHintForRow(0), 1); }

void CompletionPopup::ShowAt(const QRect &line) {
    const QRect room = parentWidget()->screen()->availableGeometry();
    const int above = line.top() - room.top();
    const int below = room.bottom() - line.bottom();
    if (const int missing = height() - std::max(above, below); missing > 0)
        ShowRows(std::max(FewestRows, List_->height() / RowHeight() - missing / RowHeight() - 1));
    const bool goesBelow = height() <= below || below >= above;
    const int top = goesBelow ? line.bottom() + 1 : line.top() - height();
    move(std::max(std::min(line.left(), room.right() - width()), room.left()),
         std::max(std::min(top, room.bottom() - height()), room.top()));
    show();
    raise();
}

const Completion &CompletionPopup::CurrentWord() const {
    return Model_->Words.at(static_cast<std::size_t>(List_->currentIndex().row()));
}

int CompletionPopup::PageSize() const { return std::max(1, List_->height() / RowHeight() - 1); }

void CompletionPopup::Move(int steps) {
    const int row = std::clamp(List_->currentIndex().row() + steps, 0, Model_->rowCount() - 1);
    List_->setCurrentIndex(Model_->index(row));
}

/// Nothing in the list has the focus, so assistive tools are told which word stands out.
void CompletionPopup::ShowHelp(int row) {
    if (row < 0)
        return;
    Help_->setText(MayBreak(Model_->Words.at(static_cast<std::size_t>(row)).Help));
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(List_, QAccessible::Focus);
    event.setChild(row);
    QAccessible::updateAccessibility(&event);
}

} // namespace Quillbox
