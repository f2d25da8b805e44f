#include "desktop/cross/heats/attack_form.h"
#include "desktop/cross/heats/heat_page.h"
#include "desktop/cross/heats/order_board.h"
#include "desktop/cross/heats/place_grid.h"
#include "desktop/shell/theme.h"
#include "desktop/splitfile/text_table.h"

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QTableWidget>
#include <QVBoxLayout>

/// The parts of the page of heats, and what a click on them does.
namespace kavela::desktop {

namespace {

QPushButton* button(const char* name, const QString& text, const QString& tip) {
    auto* made = new QPushButton(text);
    made->setObjectName(name);
    made->setToolTip(tip);
    made->setFocusPolicy(Qt::TabFocus); // a click leaves the keys to the film
    return made;
}

/// These columns share the room that the others leave; long texts are told by tips.
void stretch(QTableWidget& table, std::initializer_list<int> columns) {
    constexpr int LeastHeight = 84;
    table.horizontalHeader()->setStretchLastSection(false);
    for (const int column : columns)
        table.horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
    table.horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table.setWordWrap(false);
    table.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table.setMinimumHeight(LeastHeight);
}

QLabel* quietLabel(const char* name) {
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

HeatPage::HeatPage(const CrossDesk& desk)
    : CrossPage(desk),
      m_heats(textTable({tr("Heat"), tr("Boats"), tr("Film"), tr("Taken")})),
      m_empty(quietLabel("noHeats")),
      m_faults(quietLabel("heatFaults")),
      m_body(new QWidget),
      m_title(new QLabel),
      m_board(new OrderBoard),
      m_grid(new PlaceGrid),
      m_gridArea(new QScrollArea),
      m_take(button("takeOrder", tr("Take at this frame"),
                    tr("Takes the order shown at the frame shown"))),
      m_keep(button("keepOrder", {}, {})),
      m_reset(button("resetOrder", tr("Start over"), tr("Back to the order as it was"))),
      m_comment(new QLineEdit),
      m_attacks(textTable({tr("Start"), tr("End"), tr("Attacker"), tr("On"), tr("Outcome"),
                           tr("Side"), tr("Place"), tr("Comment")})),
      m_form(new AttackForm) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(theme::Spacing, theme::Spacing, theme::Spacing, theme::Spacing);
    column->setSpacing(theme::SmallSpacing);
    makeHeats(*column);
    column->addWidget(m_empty, 1);
    column->addWidget(m_body, 3);
    auto* body = new QVBoxLayout(m_body);
    body->setContentsMargins(0, 0, 0, 0);
    body->setSpacing(theme::SmallSpacing);
    body->addWidget(m_faults);
    makeOrders(*body);
    makeOrderButtons(*body);
    makeAttacks(*body);
    m_empty->setAlignment(Qt::AlignTop);
    m_empty->setText(tr("No heats yet. Add a heat with its boats and choose its film; then go to "
                        "each gate and press the numbers of the boats as they pass."));
    setMinimumWidth(m_body->minimumSizeHint().width()); // also as long as there is no heat
    refresh();
}

void HeatPage::makeHeats(QVBoxLayout& column) {
    m_heats->setObjectName("heats");
    stretch(*m_heats, {1, 2});
    column.addWidget(m_heats, 1);
    auto* row = new QHBoxLayout;
    auto* add = button("addHeat", tr("Add a heat…"), tr("Adds a heat of up to four boats"));
    auto* rename = button("renameBoats", tr("Names…"), tr("Other names for the boats of the heat"));
    auto* film = button("heatFilm", tr("Film…"), tr("Chooses the film of the heat"));
    auto* remove = button("removeHeat", tr("Remove"), tr("Removes the heat with all its marks"));
    for (QPushButton* const each : {add, rename, film, remove})
        row->addWidget(each);
    row->addStretch();
    m_heatButtons = {rename, film, remove};
    column.addLayout(row);
    connect(add, &QPushButton::clicked, this, &HeatPage::addHeat);
    connect(rename, &QPushButton::clicked, this, &HeatPage::renameBoats);
    connect(film, &QPushButton::clicked, this, &HeatPage::filmWanted);
    connect(remove, &QPushButton::clicked, this, &HeatPage::removeHeat);
    connect(m_heats, &QTableWidget::currentCellChanged, this, [this](int heat) {
        if (heat >= 0)
            selectHeat(static_cast<std::size_t>(heat));
    });
}

/// The order in front on the left, all orders beside it, place by place in one line.
void HeatPage::makeOrders(QVBoxLayout& column) {
    m_title->setObjectName("orderTitle");
    m_title->setTextFormat(Qt::PlainText);
    m_title->setFixedHeight(PlaceGrid::HeaderHeight);
    QFont font = m_title->font();
    font.setBold(true);
    m_title->setFont(font);
    auto* left = new QVBoxLayout;
    left->setSpacing(0);
    left->addWidget(m_title);
    left->addWidget(m_board);
    left->addStretch();
    m_gridArea->setWidget(m_grid);
    m_gridArea->setWidgetResizable(true);
    m_gridArea->setFrameShape(QFrame::NoFrame);
    m_gridArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_gridArea->setFocusPolicy(Qt::NoFocus);
    m_gridArea->setMinimumWidth(PlaceGrid::UsualWidth); // whatever the course: windows keep theirs
    auto* row = new QHBoxLayout;
    row->addLayout(left, 1);
    row->addWidget(m_gridArea, 1);
    column.addLayout(row);
    connect(m_board, &OrderBoard::edited, this,
            [this](const Names& order) { draft(order, Naming::Nothing); });
    connect(m_grid, &PlaceGrid::columnClicked, this, &HeatPage::chooseColumn);
}

void HeatPage::makeOrderButtons(QVBoxLayout& column) {
    auto* row = new QHBoxLayout;
    m_comment->setObjectName("orderComment");
    m_comment->setPlaceholderText(tr("Comment on this order"));
    for (QPushButton* const each : {m_take, m_keep, m_reset})
        row->addWidget(each);
    row->addWidget(m_comment, 1);
    column.addLayout(row);
    connect(m_take, &QPushButton::clicked, this,
            [this] { whenMeant([this](const CMTime& moment) { mark(moment); }); });
    connect(m_keep, &QPushButton::clicked, this, [this] {
        const auto record = orderInFront();
        takeOrder(record ? current()->generals[*record].time : CMTime{});
    });
    connect(m_reset, &QPushButton::clicked, this, [this] {
        m_draft.reset();
        m_naming = Naming::Nothing;
        showOrders();
    });
    connect(m_comment, &QLineEdit::editingFinished, this, &HeatPage::takeOrderComment);
    connect(m_comment, &QLineEdit::returnPressed, m_comment, &QWidget::clearFocus);
}

void HeatPage::makeAttacks(QVBoxLayout& column) {
    m_attacks->setObjectName("attacks");
    stretch(*m_attacks, {2, 3, 7});
    m_attacks->setIconSize(BadgeSize);
    m_attacks->setToolTip(tr("A click shows the frame of an attack"));
    auto* title = new QLabel(tr("Attacks"));
    QFont font = title->font();
    font.setBold(true);
    title->setFont(font);
    auto* add = button("addAttack", tr("Attack at this frame"),
                       tr("An attack starts here: then press the number of the attacker and those "
                          "of the defenders"));
    auto* row = new QHBoxLayout;
    row->addWidget(title, 1);
    row->addWidget(add);
    column.addLayout(row);
    column.addWidget(m_attacks, 1);
    column.addWidget(m_form);
    connect(add, &QPushButton::clicked, this, [this] { addAttack(); });
    connect(m_attacks, &QTableWidget::currentCellChanged, this, [this](int place) {
        if (place >= 0)
            select(HeatMark{false, static_cast<std::size_t>(place), 0});
    });
    connect(m_attacks, &QTableWidget::cellClicked, this, [this](int place) {
        goTo({false, static_cast<std::size_t>(place), 0});
    });
    connect(m_form, &AttackForm::edited, this,
            [this](const QString& what, const std::function<void(actiondata030&)>& change) {
                changeAttack(what, change);
            });
    connect(m_form, &AttackForm::startWanted, this,
            [this] { whenMeant([this](const CMTime& moment) { setAttackMoment(0, moment); }); });
    connect(m_form, &AttackForm::endWanted, this, [this] { endAttack(); });
    connect(m_form, &AttackForm::endCleared, this, [this] { removeAttackMoment(1); });
    connect(m_form, &AttackForm::removalWanted, this, &HeatPage::removeAttack);
}

} // namespace kavela::desktop
