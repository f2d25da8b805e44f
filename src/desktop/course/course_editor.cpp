#include "desktop/course/course_editor.h"

#include "desktop/course/course_part_form.h"
#include "desktop/shell/growth.h"
#include "desktop/shell/key_overlay.h"
#include "desktop/shell/theme.h"
#include "desktop/shell/typing.h"
#include "desktop/shell/workspace.h"

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QUndoCommand>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace kavela::desktop {

namespace {

constexpr int CourseKeySteps = 1; ///< by which the stack knows steps that may become one
constexpr int SideWidth = 180;    ///< pixels

/// One step of drawing.
class CourseStep : public QUndoCommand {
public:
    CourseStep(const QString& what, CourseCanvas& canvas, CourseDraft after, bool byKey)
        : QUndoCommand(what),
          m_canvas(canvas),
          m_before(canvas.draft()),
          m_after(std::move(after)),
          m_byKey(byKey) {}

    void undo() override { m_canvas.show(m_before); }
    void redo() override { m_canvas.show(m_after); }
    [[nodiscard]] int id() const override { return m_byKey ? CourseKeySteps : -1; }
    /// An arrow that is held down moves once.
    bool mergeWith(const QUndoCommand* next) override {
        if (next->text() != text())
            return false;
        m_after = static_cast<const CourseStep*>(next)->m_after;
        return true;
    }

private:
    CourseCanvas& m_canvas;
    CourseDraft m_before;
    CourseDraft m_after;
    bool m_byKey;
};

} // namespace

CourseEditor::CourseEditor(const infodata031& info, Workspace& workspace, QWidget* parent)
    : EntryDialog(parent),
      m_workspace(workspace),
      m_info(info),
      m_canvas(new CourseCanvas),
      m_form(new CoursePartForm),
      m_tools(new QButtonGroup(this)),
      m_hint(new QLabel),
      m_choosePhoto([this] {
          return QFileDialog::getOpenFileName(this, tr("Photo or plan of the course"), {},
                                              tr("Pictures (*.png *.jpg *.jpeg);;All files (*)"));
      }),
      m_askText([this] { return QInputDialog::getText(this, tr("Text"), tr("Words there")); }) {
    setWindowTitle(tr("Draw the course"));
    makeParts();
    std::string fault;
    m_canvas->show(courseDraftOf(m_info, fault));
    setTool(m_canvas->draft().design.gates.empty() ? CourseTool::Gate : CourseTool::Hold);
    if (!fault.empty())
        tell(tr("The picture of the race cannot be drawn upon: %1 It stays as long as nothing is "
                "drawn.")
                 .arg(QString::fromStdString(fault)));
    m_canvas->setFocus();
    resize(1120, 680);
}

void CourseEditor::makeParts() {
    m_hint->setObjectName("courseHint");
    m_hint->setWordWrap(true);
    auto* keys = new QLabel(
        tr("Tab next part · arrows move it, Shift+arrows far · Alt+←/→ turn · PgDn its points · "
           "Delete · Insert puts one in the middle · Ctrl+Z undo, Ctrl+Shift+Z redo") +
        "\n" +
        tr("Wheel, + and − zoom · 0 shows all · drag with Space or the middle button moves the "
           "view"));
    keys->setWordWrap(true);
    keys->setFont(theme::captionFont(*this));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &CourseEditor::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CourseEditor::reject);
    auto* side = new QVBoxLayout;
    side->addWidget(makeTools());
    side->addSpacing(theme::LargeSpacing);
    side->addWidget(m_form, 1);
    side->addWidget(makeGround());
    auto* row = new QHBoxLayout;
    row->addWidget(m_canvas, 1);
    row->addLayout(side);
    auto* whole = new QVBoxLayout(this);
    whole->addLayout(row, 1);
    whole->addWidget(m_hint);
    whole->addWidget(keys);
    whole->addWidget(buttons);
    connect(m_canvas, &CourseCanvas::edited, this, &CourseEditor::put);
    connect(m_canvas, &CourseCanvas::selectionChanged, this, &CourseEditor::showSelected);
    connect(m_canvas, &CourseCanvas::told, this, &CourseEditor::tell);
    connect(m_canvas, &CourseCanvas::textWanted, this, &CourseEditor::putText);
    connect(m_form, &CoursePartForm::edited, this, &CourseEditor::put);
    connect(m_form, &CoursePartForm::told, this, &CourseEditor::tell);
    m_keep.setSingleShot(true);
    m_keep.setInterval(KeepPause);
    connect(&m_keep, &QTimer::timeout, this, &CourseEditor::tellDrawn);
    connect(&m_steps, &QUndoStack::indexChanged, this, [this] {
        if (!m_keep.isActive())
            m_keep.start();
    });
    makeKeys();
}

QWidget* CourseEditor::makeTools() {
    const std::array<std::pair<CourseTool, QString>, 6> tools{
        std::pair{CourseTool::Hold, tr("&Hold and move")},
        std::pair{CourseTool::Gate, tr("&Gate")},
        std::pair{CourseTool::SplitLine, tr("&Split line")},
        std::pair{CourseTool::Bank, tr("&Bank")},
        std::pair{CourseTool::Line, tr("&Line of a run")},
        std::pair{CourseTool::Text, tr("&Text")}};
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(theme::SmallSpacing);
    for (const auto& [tool, title] : tools) {
        auto* const button = new QPushButton(title);
        button->setCheckable(true);
        button->setAutoDefault(false);
        button->setObjectName(QStringLiteral("tool%1").arg(static_cast<int>(tool)));
        m_tools->addButton(button, static_cast<int>(tool));
        column->addWidget(button);
    }
    connect(m_tools, &QButtonGroup::idClicked, this, [this](int tool) {
        setTool(static_cast<CourseTool>(tool));
        m_canvas->setFocus();
    });
    box->setFixedWidth(std::max(grown(*this, SideWidth), box->minimumSizeHint().width()));
    return box;
}

QWidget* CourseEditor::makeGround() {
    auto* box = new QWidget;
    auto* column = new QVBoxLayout(box);
    column->setContentsMargins(0, 0, 0, 0);
    auto* const photo = new QPushButton(tr("&Photo below…"));
    auto* const white = new QPushButton(tr("Only whit&e below"));
    photo->setObjectName("photo");
    white->setObjectName("white");
    for (QPushButton* const button : {photo, white}) {
        button->setAutoDefault(false);
        column->addWidget(button);
    }
    connect(photo, &QPushButton::clicked, this, [this] {
        if (const QString path = m_choosePhoto(); !path.isEmpty())
            usePhoto(path);
    });
    connect(white, &QPushButton::clicked, this, &CourseEditor::useWhite);
    box->setFixedWidth(std::max(grown(*this, SideWidth), box->minimumSizeHint().width()));
    return box;
}

void CourseEditor::makeKeys() {
    auto* const undo = m_steps.createUndoAction(this);
    undo->setShortcuts(QKeySequence::Undo);
    auto* const redo = m_steps.createRedoAction(this);
    redo->setShortcuts(QKeySequence::Redo);
    auto* const keys = new QAction(tr("All keys"), this);
    keys->setShortcut(Qt::Key_Question);
    connect(keys, &QAction::triggered, this, &CourseEditor::showKeys);
    addActions({undo, redo, keys});
}

void CourseEditor::showKeys() {
    const auto named = [](QKeyCombination key) {
        return QKeySequence(key).toString(QKeySequence::NativeText);
    };
    const ShownKeys parts{tr("Parts of the course"),
                          {{named(Qt::Key_Tab), tr("Next part")},
                           {QString::fromUtf8("← → ↑ ↓"), tr("Move the part")},
                           {QString::fromUtf8("Shift+← → ↑ ↓"), tr("Move it far")},
                           {QString::fromUtf8("Alt+← →"), tr("Turn it")},
                           {named(Qt::Key_PageDown), tr("Its next point")},
                           {named(Qt::Key_PageUp), tr("Its previous point")},
                           {named(Qt::Key_Insert), tr("A new part in the middle")},
                           {named(Qt::Key_Delete), tr("Remove the part")},
                           {named(Qt::Key_Escape), tr("Leave the part alone")}}};
    const ShownKeys rest{
        tr("View and steps"),
        {{QStringLiteral("+"), tr("Closer")},
         {QString::fromUtf8("−"), tr("Further away")},
         {QStringLiteral("0"), tr("The whole course")},
         {named(Qt::Key_Space), tr("Held, dragging moves the view")},
         {QKeySequence(QKeySequence::Undo).toString(QKeySequence::NativeText), tr("Undo")},
         {QKeySequence(QKeySequence::Redo).toString(QKeySequence::NativeText), tr("Redo")},
         {QStringLiteral("?"), tr("All keys")}}};
    auto* const overlay = new KeyOverlay(*this, {parts, rest}, this);
    overlay->setAttribute(Qt::WA_DeleteOnClose);
    overlay->open();
}

void CourseEditor::setTool(CourseTool tool) {
    static const std::array<const char*, 6> Hints{
        QT_TR_NOOP("Drag a part, or one of its points. The poles of a gate turn about each other."),
        QT_TR_NOOP("Click where a gate hangs; hold the button and drag its right pole round."),
        QT_TR_NOOP("Drag from bank to bank where the split is taken."),
        QT_TR_NOOP("Draw along the bank with the button held down."),
        QT_TR_NOOP("Draw the way of a boat with the button held down, and name it at the right."),
        QT_TR_NOOP("Click where words are to stand.")};
    m_canvas->setTool(tool);
    m_tools->button(static_cast<int>(tool))->setChecked(true);
    tell(tr(Hints[static_cast<std::size_t>(tool)]));
}

void CourseEditor::put(const QString& what, const CourseDraft& draft, bool byKey) {
    m_steps.push(new CourseStep(what, *m_canvas, draft, byKey));
}

void CourseEditor::putText(const coursepoint001& at) {
    const QString text = m_askText().trimmed();
    if (text.isEmpty())
        return;
    CourseDraft after = m_canvas->draft();
    after.design.texts.push_back({text.toStdString(), at});
    put(tr("text"), after, false);
    m_canvas->select(CoursePart{CoursePart::Kind::Text, m_canvas->draft().design.texts.size() - 1});
}

void CourseEditor::usePhoto(const QString& path) {
    QFile file(path);
    try {
        // A film of gigabytes chosen by mistake is not read to be told so.
        if (file.size() > static_cast<qint64>(report::MostPhotoBytes))
            throw CourseError(tr("It has %1 MB. Up to 40 MB can be read; save it smaller first.")
                                  .arg(file.size() / 1'000'000)
                                  .toStdString());
        if (!file.open(QIODevice::ReadOnly))
            throw CourseError(file.errorString().toStdString());
        const QByteArray bytes = file.readAll();
        report::CourseGround ground =
            report::courseGround({reinterpret_cast<const unsigned char*>(bytes.constData()),
                                  static_cast<std::size_t>(bytes.size())});
        CourseDraft after = m_canvas->draft();
        after.design.background = std::move(ground.picture);
        after.heightOfWidth = ground.heightOfWidth;
        put(tr("photo"), after, false);
    } catch (const CourseError& error) {
        m_workspace.showAlert({"", QFileInfo(path).fileName().toStdString() + ": " + error.what()},
                              this);
    }
}

void CourseEditor::useWhite() {
    CourseDraft after = m_canvas->draft();
    if (after.design.background.bytes.empty())
        return;
    after.design.background = {};
    put(tr("white"), after, false);
}

void CourseEditor::showSelected() {
    m_form->show(m_canvas->draft(), m_canvas->selected());
}

void CourseEditor::tell(const QString& hint) {
    m_hint->setText(hint);
}

/// Making the picture takes a moment, which a hand that is drawing would feel.
void CourseEditor::tellDrawn() {
    if (QApplication::mouseButtons() != Qt::NoButton)
        return m_keep.start();
    try {
        emit drawn(isChanged() ? withDraft(m_info, m_canvas->draft()) : m_info);
    } catch (const CourseError&) {
        // What is wrong is told when the coach agrees to the drawing.
    }
}

void CourseEditor::accept() {
    if (!takeTyping(*this))
        return;
    if (isChanged())
        try {
            m_info = withDraft(m_info, m_canvas->draft());
        } catch (const CourseError& error) {
            m_workspace.showAlert({"", error.what()}, this);
            return;
        }
    m_keep.stop();
    EntryDialog::accept();
}

void CourseEditor::reject() {
    if (!isChanged() ||
        m_workspace.askBeforeLoss(
            {"", tr("Leave the course as it was? What was drawn is lost.").toStdString()},
            tr("Leave it"), this)) {
        m_keep.stop();
        EntryDialog::reject();
    }
}

} // namespace kavela::desktop
