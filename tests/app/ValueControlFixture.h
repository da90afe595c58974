#pragma once

#include "properties/ControlRows.h"
#include "properties/PaletteRecorders.h"
#include "properties/qt/ChoiceBox.h"
#include "properties/qt/ScreenColor.h"
#include "properties/qt/ValueControls.h"
#include "settings/MemorySettingsStore.h"
#include "text/Encoding.h"
#include "text/qt/QtText.h"

#include <gtest/gtest.h>
#include <QAbstractItemView>
#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <functional>
#include <string>
#include <utility>

namespace tintora::test {

class HeldClipboard final : public Clipboard {
  public:
    [[nodiscard]] bool HasText() const override { return !text.empty(); }
    [[nodiscard]] Text GetText() const override { return text; }
    void SetText(TextView other) override { text = other; }

    Text text;
};

class RecordingMenus final : public PaletteMenus {
  public:
    [[nodiscard]] bool IsEditorInFront() const override { return isEditorInFront; }
    void UpdateMenuItem(TextView key, bool enabled) override {
        calls.push_back((enabled ? "+" : "-") + Utf8FromText(key));
    }

    [[nodiscard]] std::string Take() { return Joined(std::exchange(calls, {})); }

    bool isEditorInFront = true;
    PaletteCalls calls;
};

/// The document in front, with what its style sheet uses.
class UsedDocument final : public StillDocument {
  public:
    UsedDocument() { selector = u"p"; }

    [[nodiscard]] Text GetFile() const override { return file; }
    [[nodiscard]] Texts GetCurrentColors() const override { return colors; }
    [[nodiscard]] Texts GetCurrentFonts() const override { return fonts; }
    [[nodiscard]] Texts GetCurrentURLs() const override { return urls; }

    Text file = u"/site/style.css";
    Texts colors;
    Texts fonts;
    Texts urls;
};

/// A screen of one colour without end, but for the part left of it.
class PaintedScreen final : public ScreenColor {
  public:
    [[nodiscard]] Way PresentWay() const override { return way; }
    [[nodiscard]] QString WhyNot() const override { return QStringLiteral("It is dark."); }
    [[nodiscard]] std::optional<QColor> ColorAt(const QPoint& place) override {
        return place.x() < -5000 ? std::nullopt : std::optional(color);
    }
    void Ask(QObject*, const Answer& toAnswer) override { answer = toAnswer; }

    Way way = Way::Directly;
    QColor color{1, 2, 255};
    Answer answer;
};

/// Value controls in a window of their own, with a field beside them, and what they tell.
class ValueControlTest : public testing::Test {
  protected:
    ValueControlTest() {
        documents.document = &document;
        column.addWidget(&other);
        window.resize(240, 300);
        window.show();
        window.activateWindow();
        QApplication::setActiveWindow(&window);
        other.setFocus();
    }
    ~ValueControlTest() override { other.setParent(nullptr); }

    /// The control of a row, cleared, in the window.
    ValueControl& Make(int number) {
        for (const ControlRow& row : ControlRows()) {
            if (row.number == number)
                return Make(row);
        }
        ADD_FAILURE() << "no row " << number;
        return Make(ControlRows().front());
    }
    ValueControl& Make(const ControlRow& row) {
        ValueControl* const control = MakeValueControl(row, surroundings, &window);
        Listen(*control);
        column.addWidget(control);
        control->Clear(documents.document);
        control->show();
        QApplication::processEvents();
        Take();
        return *control;
    }

    void Listen(ValueControl& control) {
        QObject::connect(&control, &ValueControl::PropertyHasChanged, &window, [&](const Text& value, int number) {
            calls.push_back(std::to_string(number) + " [" + Utf8FromText(value) + "]");
            if (onReport)
                onReport();
        });
        QObject::connect(&control, &ValueControl::PropertyHasFocus, &window,
                         [&](int number) { calls.push_back("focus " + std::to_string(number)); });
        QObject::connect(&control, &ValueControl::ListHasDroppedDown, &window, [&] { calls.emplace_back("list"); });
    }

    /// What the controls have told since the last time.
    std::string Take() { return Joined(std::exchange(calls, {})); }

    template <typename Part>
    static Part& PartOf(const QWidget& control, const char* name) {
        auto* const part = control.findChild<Part*>(QString::fromUtf8(name));
        if (part == nullptr)
            throw std::logic_error(std::string("no part ") + name);
        return *part;
    }
    static ChoiceBox& List(const QWidget& control, const char* name) { return PartOf<ChoiceBox>(control, name); }
    static QLineEdit& Field(const QWidget& control, const char* name) { return PartOf<QLineEdit>(control, name); }

    static void ShowAndChoose(ChoiceBox& list, const char* entry) {
        list.showPopup();
        ChooseInOpenList(list, entry);
    }
    static void ChooseInOpenList(ChoiceBox& list, const char* entry) {
        const int row = list.findText(QString::fromUtf8(entry), Qt::MatchExactly | Qt::MatchCaseSensitive);
        ASSERT_GE(row, 0) << entry;
        QAbstractItemView& view = *list.view();
        view.scrollTo(view.model()->index(row, 0));
        const QPoint place = view.visualRect(view.model()->index(row, 0)).center();
        QTest::mouseMove(view.viewport(), place);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    }

    /// Turns the wheel over a part by one step towards the user, as the system does.
    static bool TurnWheel(QWidget& part) {
        const QPoint place = part.rect().center();
        QWheelEvent event(place, part.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&event);
        qApp->notify(&part, &event);
        return event.isAccepted();
    }

    static QStringList EntriesOf(const ChoiceBox& list) {
        QStringList entries;
        for (int index = 0; index < list.count(); ++index)
            entries.append(list.itemText(index));
        return entries;
    }

    /// Whether anything in the picture of a part is pure red.
    static bool IsRedSeenIn(QWidget& part) {
        const QImage image = part.grab().toImage();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor color = image.pixelColor(x, y);
                if (color.red() > 200 && color.green() < 60 && color.blue() < 60)
                    return true;
            }
        }
        return false;
    }

    PaletteCalls calls;
    UsedDocument document;
    OneDocument documents;
    MemorySettingsStore store;
    PaletteFlags flags;
    HeldClipboard clipboard;
    RecordingMenus menus;
    PaintedScreen screen;
    std::function<void()> onReport;

    /// The questions that were asked, and the answers to the next.
    std::vector<std::string> questions;
    std::optional<QColor> color;
    QString file;
    std::function<void()> whileAsked;

    ControlSurroundings surroundings{
        documents,
        store,
        flags,
        clipboard,
        menus,
        [this](const ColorQuestion& question, QWidget*) {
            questions.push_back("color " + question.title.toStdString() + " " + question.present->name().toStdString());
            if (whileAsked)
                whileAsked();
            return color;
        },
        [this](const QString& title, const QString& filter, QWidget*) {
            questions.push_back(title.toStdString() + ": " + filter.toStdString());
            if (whileAsked)
                whileAsked();
            return file;
        },
        &screen};
    QWidget window;
    QVBoxLayout column{&window};
    QLineEdit other;
};

}  // namespace tintora::test
