#include "qt/keyboard/search_list.h"

#include "appearance/paint_jump_to.h"
#include "core/frmMain.h"
#include "core/tr.h"
#include "keyboard/jump_to.h"
#include "keyboard/jump_to_measures.h"
#include "qt/appearance/fonts.h"
#include "qt/core/convert.h"

#include <QAbstractItemDelegate>
#include <QAbstractListModel>
#include <QCursor>
#include <QListView>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QStyleOptionViewItem>
#include <QWheelEvent>

#include <utility>

namespace quill {
namespace {

constexpr int rowHeight = static_cast<int>(SearchRowHeight / TwipsPerPixel);
constexpr int inset = static_cast<int>(SearchListInset / TwipsPerPixel);
constexpr int textInset = 5; // pixels from a row's edge to its text, which then begins below the field's
constexpr qreal plateCorner = 4;
constexpr int barWidth = 12, barInset = 3;
constexpr std::size_t longestShown = 500; // bytes; no row is as wide

// A row: its text, on a plate when it is the highlighted one.
class RowPainter : public QAbstractItemDelegate {
public:
    using QAbstractItemDelegate::QAbstractItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override {
        return {option.rect.width(), rowHeight};
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool highlighted = option.state.testFlag(QStyle::State_Selected);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        painter->setBrush(option.palette.color(QPalette::Highlight));
        if (highlighted) painter->drawRoundedRect(option.rect, plateCorner, plateCorner);
        painter->setPen(option.palette.color(highlighted ? QPalette::HighlightedText : QPalette::Text));
        painter->setFont(option.font);
        const QRect place = option.rect.adjusted(textInset, 0, -textInset, 0);
        const QString text = index.data().toString();
        painter->drawText(place, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                          option.fontMetrics.elidedText(text, Qt::ElideRight, place.width()));
        painter->restore();
    }
};

// The scroll bar, no more than its thumb.
class SlimBar : public QScrollBar {
public:
    explicit SlimBar(QWidget* parent) : QScrollBar(Qt::Vertical, parent) {}

    QSize sizeHint() const override { return {barWidth, rowHeight}; }

protected:
    void paintEvent(QPaintEvent*) override {
        QStyleOptionSlider option;
        initStyleOption(&option);
        const QRect thumb =
            style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().color(QPalette::Mid));
        const QRectF seen = QRectF(thumb).adjusted(barInset, 0, -barInset, 0);
        painter.drawRoundedRect(seen, seen.width() / 2, seen.width() / 2);
    }
};

} // namespace

// The lines as the toolkit's views ask for them. They are the logic's own and may have changed before the
// view is told: what is asked for then is empty.
class SearchLines : public QAbstractListModel {
public:
    SearchLines(const Attachment& attached, QObject* parent)
        : QAbstractListModel(parent), attached_(attached) {}

    void Changed() {
        beginResetModel();
        count_ = static_cast<int>(attached_.Main->Keys.PicJumpToLink.cboSearch.List.size());
        endResetModel();
    }
    int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : count_; }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole || !attached_.Alive()) return {};
        const auto& list = attached_.Main->Keys.PicJumpToLink.cboSearch.List;
        const auto row = static_cast<std::size_t>(index.row());
        if (row >= list.size()) return {};
        return Text(OnOneLine(std::string_view(list[row].Text).substr(0, longestShown)));
    }

private:
    const Attachment& attached_;
    int count_ = 0;
};

SearchList::SearchList(const Attachment& attached, const Fonts& fonts, QWidget& field, QWidget* parent)
    : QWidget(parent), attached_(attached), fonts_(fonts), lines_(new SearchLines(attached, this)),
      view_(new QListView(this)) {
    for (QWidget* widget : {static_cast<QWidget*>(this), static_cast<QWidget*>(view_)}) {
        widget->setFocusPolicy(Qt::ClickFocus); // a press gives the keyboard to the field, which has it
        widget->setFocusProxy(&field);
    }
    view_->setFrameShape(QFrame::NoFrame);
    view_->setUniformItemSizes(true);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view_->setVerticalScrollBar(new SlimBar(view_));
    view_->setMouseTracking(true);
    view_->setItemDelegate(new RowPainter(view_));
    view_->setModel(lines_);
    view_->viewport()->setAutoFillBackground(false);
    view_->viewport()->installEventFilter(this);
    hide();
}

void SearchList::Follow() {
    const auto& Main = *attached_.Main;
    const QRect place = PixelRect(PlaceOfSearchList(Main));
    if (place.isEmpty()) return hide();
    SetLooks();
    TakeLines();
    if (geometry() != place) {
        setGeometry(place);
        view_->setGeometry(rect().adjusted(inset, inset, -inset, -inset));
    }
    if (isHidden()) {
        pointer_ = QCursor::pos(); // it has not gone to a row, the row has come to it
        pressed_ = -1;
        show();
        raise();
    }
    const QModelIndex row = lines_->index(Main.Keys.PicJumpToLink.cboSearch.ListIndex, 0);
    if (view_->currentIndex() == row) return;
    view_->setCurrentIndex(row);
    view_->scrollTo(row);
}

void SearchList::TakeLines() {
    const auto now = attached_.Main->Keys.PicJumpToLink.cboSearch.ListRevision;
    if (std::exchange(revision_, now) == now) return;
    lines_->Changed();
    view_->scrollToTop();
}

void SearchList::SetLooks() {
    const auto shown = ColorsOfJumpTo(*attached_.Main);
    QPalette colors = palette();
    colors.setColor(QPalette::Base, Ink(shown.Field));
    colors.setColor(QPalette::Window, Ink(shown.Field));
    colors.setColor(QPalette::Button, Ink(shown.Plate));
    colors.setColor(QPalette::Mid, Ink(shown.Line));
    colors.setColor(QPalette::Text, Ink(shown.Ink));
    colors.setColor(QPalette::Highlight, Ink(shown.Plate));
    colors.setColor(QPalette::HighlightedText, Ink(shown.PlateInk));
    if (colors != palette()) setPalette(colors);
    const QFont& font = fonts_.Get({attached_.Main->Settings.FontName, JumpToSmallPoints}).Font;
    if (font != view_->font()) view_->setFont(font);
    const QString name = Text(Tr(*attached_.Main, "Keyboard Launcher"));
    if (view_->accessibleName() != name) view_->setAccessibleName(name);
}

void SearchList::paintEvent(QPaintEvent*) {
    if (!attached_.Alive()) return;
    const auto shown = ColorsOfJumpTo(*attached_.Main);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Ink(shown.Line), 1));
    painter.setBrush(Ink(shown.Field));
    constexpr qreal half = 0.5, corner = JumpToFieldCorner / TwipsPerPixel;
    painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), corner, corner);
}

// What lies below the list is not pressed or scrolled through it.
void SearchList::mousePressEvent(QMouseEvent* event) {
    event->accept();
}
void SearchList::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
}
void SearchList::wheelEvent(QWheelEvent* event) {
    event->accept();
}

// The view is not let see the mouse's buttons and moves: it would select by its own rules.
bool SearchList::eventFilter(QObject*, QEvent* event) {
    if (!attached_.Alive()) return false;
    const auto* mouse = dynamic_cast<QMouseEvent*>(event);
    if (mouse == nullptr) return false;
    const QPoint place = mouse->position().toPoint();
    if (event->type() == QEvent::MouseMove) PointAt(place, mouse->globalPosition().toPoint());
    if (mouse->button() == Qt::LeftButton && event->type() != QEvent::MouseButtonRelease)
        pressed_ = view_->indexAt(place).row();
    if (mouse->button() == Qt::LeftButton && event->type() == QEvent::MouseButtonRelease) ClickAt(place);
    return true;
}

// A row that the keyboard has scrolled under a resting pointer is not pointed at.
void SearchList::PointAt(QPoint place, QPoint screen) {
    if (std::exchange(pointer_, screen) == screen) return;
    const int row = view_->indexAt(place).row();
    if (row >= 0 && row != attached_.Main->Keys.PicJumpToLink.cboSearch.ListIndex)
        cboSearch_Highlight(*attached_.Main, row);
}

void SearchList::ClickAt(QPoint place) {
    const int row = view_->indexAt(place).row();
    if (row >= 0 && row == std::exchange(pressed_, -1)) cboSearch_Choose(*attached_.Main, row);
}

} // namespace quill
