// Every screen and dialog as a screen reader finds it: each control has a name, which stays the
// same whatever it shows, and each text that is shown can be read.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QAccessibleInterface>
#include <QGroupBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QProgressBar>
#include <QTabBar>
#include <set>

#include "screens/every_window.h"
#include "screens/text_room.h"

namespace kav::test::access_walk_test {
namespace {

/// What holds others, or marks the place between them, and is no control itself.
bool NeedsNoName(const QAccessibleInterface& part) {
  static const std::set<QAccessible::Role> kRoles{
      QAccessible::Client,     QAccessible::Pane,   QAccessible::Grouping,
      QAccessible::Separator,  QAccessible::Grip,   QAccessible::ScrollBar,
      QAccessible::Whitespace, QAccessible::Border, QAccessible::Splitter,
      QAccessible::LayeredPane};
  return kRoles.contains(part.role()) && !part.state().focusable;
}

/// A cell is called by what it shows, which may be nothing.
bool IsCalledByItsText(const QAccessibleInterface& part) {
  static const std::set<QAccessible::Role> kRoles{QAccessible::Cell,      QAccessible::ColumnHeader,
                                                  QAccessible::RowHeader, QAccessible::TreeItem,
                                                  QAccessible::ListItem,  QAccessible::StaticText};
  return kRoles.contains(part.role());
}

QString NameOf(QAccessibleInterface& part) {
  return part.text(QAccessible::Name);
}

QString TextOf(QAccessibleInterface& part) {
  QAccessibleTextInterface* text = part.textInterface();
  return text != nullptr ? text->text(0, text->characterCount()) : QString();
}

QAccessibleInterface& Of(const QWidget& widget) {
  return *QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
}

/// What can be seen, and what a menu that is closed will show.
bool IsThere(const QAccessibleInterface& part) {
  const bool isOfMenu =
      part.role() == QAccessible::PopupMenu || part.role() == QAccessible::MenuItem;
  return isOfMenu || !part.state().invisible;
}

void Walk(QAccessibleInterface& from, const std::function<void(QAccessibleInterface&)>& see) {
  constexpr int kMostChildren = 300;
  for (int i = 0; i < std::min(from.childCount(), kMostChildren); ++i) {
    QAccessibleInterface* child = from.child(i);
    if (child == nullptr || !child->isValid() || !IsThere(*child)) continue;
    see(*child);
    Walk(*child, see);
  }
}

/// The texts that a widget shows at the moment, as its user reads them.
QStringList ShownBy(const QWidget& part) {
  QStringList texts;
  if (const auto* button = qobject_cast<const QAbstractButton*>(&part)) {
    // A sign is a picture.
    const QString caption = WithoutMark(button->text());
    if (caption.size() > 1 || caption < QString("~")) texts << caption;
  } else if (const auto* label = qobject_cast<const QLabel*>(&part)) {
    texts << (label->buddy() != nullptr ? WithoutMark(label->text()) : label->text());
  } else if (const auto* combo = qobject_cast<const QComboBox*>(&part)) {
    texts << combo->currentText();
  } else if (const auto* line = qobject_cast<const QLineEdit*>(&part)) {
    texts << line->text() << line->placeholderText();
  } else if (const auto* edit = qobject_cast<const QPlainTextEdit*>(&part)) {
    texts << edit->toPlainText();
  } else if (const auto* box = qobject_cast<const QGroupBox*>(&part)) {
    texts << box->title();
  } else if (const auto* bar = qobject_cast<const QProgressBar*>(&part)) {
    texts << QString::number(bar->value());
  } else if (const auto* tabs = qobject_cast<const QTabBar*>(&part)) {
    for (int i = 0; i < tabs->count(); ++i) texts << WithoutMark(tabs->tabText(i));
  } else if (const auto* grid = dynamic_cast<const CGridCtrl*>(&part)) {
    for (int row = 0; row < grid->Model().RowCount(); ++row) {
      for (int column = 0; column < grid->Model().ColumnCount(); ++column) {
        texts << ToQt(std::u16string(grid->GetItemText(row, column)));
      }
    }
  } else if (const auto* view = qobject_cast<const QAbstractItemView*>(&part)) {
    if (qobject_cast<const QHeaderView*>(view) != nullptr) return texts;
    const QAbstractItemModel& items = *view->model();
    for (int row = 0; row < items.rowCount(); ++row) {
      for (int column = 0; column < items.columnCount(); ++column) {
        const QModelIndex index = items.index(row, column);
        if (!view->viewport()->rect().intersects(view->visualRect(index))) return texts;
        texts << index.data().toString();
      }
    }
  }
  texts.removeAll(QString());
  return texts;
}

/// What a screen reader reads of a part and of what is in it.
QStringList ReadableOf(QAccessibleInterface& part) {
  QStringList texts;
  const auto take = [&](QAccessibleInterface& one) {
    texts << NameOf(one) << one.text(QAccessible::Description) << TextOf(one);
    const auto* value = one.valueInterface();
    if (value != nullptr) texts << value->currentValue().toString();
  };
  take(part);
  Walk(part, take);
  return texts;
}

class AccessWalkTest : public EveryWindow {};

/// What a screen reader says of a control that has no name.
std::string Described(QAccessibleInterface& part) {
  const QObject* object = part.object();
  return "role " + std::to_string(part.role()) + " " +
         (object != nullptr ? object->metaObject()->className() : "part") + " \"" +
         NameOf(part).toStdString() + "\"";
}

using Complaints = std::vector<std::string>;

Complaints Unnamed(const QWidget& window) {
  Complaints complaints;
  const auto see = [&](QAccessibleInterface& part) {
    if (part.role() == QAccessible::NoRole ||
        (part.role() == QAccessible::Client && part.state().focusable)) {
      complaints.push_back(Described(part) + " has no role");
    }
    if (NeedsNoName(part) || IsCalledByItsText(part) || !NameOf(part).isEmpty()) return;
    complaints.push_back(Described(part) + " has no name");
  };
  see(Of(window));
  Walk(Of(window), see);
  return complaints;
}

Complaints Unreadable(const QWidget& window) {
  Complaints complaints;
  for (const auto* part : window.findChildren<QWidget*>()) {
    if (!part->isVisible() || part->window() != &window) continue;
    const QStringList shown = ShownBy(*part);
    if (shown.isEmpty()) continue;
    const QStringList readable = ReadableOf(Of(*part));
    for (const QString& text : shown) {
      if (readable.contains(text)) continue;
      complaints.push_back('"' + text.toStdString() + "\" of " + Described(Of(*part)));
    }
  }
  return complaints;
}

/// What the user can set, in the order in which the window has it.
std::vector<QPointer<QWidget>> Settable(const QWidget& window) {
  std::vector<QPointer<QWidget>> parts;
  for (auto* part : window.findChildren<QWidget*>()) {
    if (!part->isVisible() || !part->isEnabled() || part->window() != &window) continue;
    const auto* line = qobject_cast<QLineEdit*>(part);
    const auto* edit = qobject_cast<QPlainTextEdit*>(part);
    const bool isList = qobject_cast<QAbstractItemView*>(part) != nullptr &&
                        qobject_cast<QHeaderView*>(part) == nullptr &&
                        dynamic_cast<CGridCtrl*>(part) == nullptr;
    if ((line != nullptr && !line->isReadOnly()) || (edit != nullptr && !edit->isReadOnly()) ||
        isList || qobject_cast<QCheckBox*>(part) != nullptr ||
        qobject_cast<QRadioButton*>(part) != nullptr || qobject_cast<QComboBox*>(part) != nullptr ||
        qobject_cast<QTabBar*>(part) != nullptr) {
      parts.emplace_back(part);
    }
  }
  return parts;
}

/// What the fields are set to: no two to the same, as a range is not.
QString Typed(std::size_t field) {
  return QString::number(12 + field);
}

// Each changes a control, if it can be changed at this moment.
void SetByKeyboard(QWidget& part, const QString& text) {
  part.setFocus();
  if (qobject_cast<QAbstractButton*>(&part) != nullptr) {
    QTest::keyClick(&part, Qt::Key_Space);
  } else if (qobject_cast<QComboBox*>(&part) != nullptr) {
    QTest::keyClick(&part, Qt::Key_Down);
  } else if (qobject_cast<QTabBar*>(&part) != nullptr) {
    QTest::keyClick(&part, Qt::Key_Right);
  } else if (qobject_cast<QAbstractItemView*>(&part) != nullptr) {
    QTest::keyClick(&part, Qt::Key_Home);
    QTest::keyClick(&part, Qt::Key_End);
  } else {
    QTest::keyClick(&part, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&part, text);
  }
}

void SetByScreenReader(QWidget& part, const QString& text) {
  QAccessibleInterface& access = Of(part);
  if (qobject_cast<QAbstractButton*>(&part) != nullptr) {
    access.actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  } else if (qobject_cast<QComboBox*>(&part) != nullptr) {
    access.actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
  } else if (auto* tabs = qobject_cast<QTabBar*>(&part)) {
    const int next = std::min(tabs->currentIndex() + 1, tabs->count() - 1);
    access.child(next)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  } else if (auto* view = qobject_cast<QAbstractItemView*>(&part)) {
    if (view->model()->rowCount() > 0) {
      EXPECT_TRUE(access.tableInterface()->selectRow(view->model()->rowCount() - 1));
    }
  } else {
    const int end = access.textInterface()->characterCount();
    access.editableTextInterface()->replaceText(0, end, text);
  }
}

/// All that a window says of itself.
QStringList StateOf(const QWidget& window) {
  QStringList parts;
  Walk(Of(window), [&](QAccessibleInterface& part) {
    const QAccessible::State state = part.state();
    parts << QString("%1 %2 %3 %4%5%6")
                 .arg(part.role())
                 .arg(NameOf(part), TextOf(part), state.checked ? "checked " : "",
                      state.disabled ? "disabled " : "", state.selected ? "selected" : "");
  });
  return parts;
}

TEST_F(AccessWalkTest, EveryControlHasANameAndEveryTextCanBeRead) {
  VisitAll([](QWidget& window) {
    EXPECT_EQ(Unnamed(window), Complaints{});
    EXPECT_EQ(Unreadable(window), Complaints{});
  });
}

TEST_F(AccessWalkTest, AGraphIsDescribedAsItIsNow) {
  for (const Window& window : Dialogs()) {
    if (std::string_view(window.name) != "graph") continue;
    window.show([](QWidget& shown) {
      QAccessibleInterface& graph = Of(*QApplication::focusWidget());
      EXPECT_EQ(graph.role(), QAccessible::Graphic);
      const QString curves = "R:F1(X)=x; G:F2(x)=1/x; B:F3(X)=x^2; ";
      EXPECT_EQ(graph.text(QAccessible::Description),
                curves + "x min=-10; x max=10; y min=-10; y max=10");
      QTest::keyClick(&shown, Qt::Key_Plus);
      EXPECT_EQ(graph.text(QAccessible::Description),
                curves + "x min=-6; x max=6; y min=-6; y max=6");
    });
  }
}

TEST_F(AccessWalkTest, AMenuOfAKeyIsNamedAsTheKey) {
  const auto expectMenus = [this](auto make, const std::vector<std::u16string_view>& keys) {
    const auto screen = make(*frame_);
    Show(*screen);
    for (const std::u16string_view key : keys) {
      Tap(*screen, key);
      QMenu* menu = OpenMenu();
      ASSERT_NE(menu, nullptr) << ToQt(key).toStdString();
      EXPECT_EQ(NameOf(Of(*menu)), ToQt(key));
      EXPECT_EQ(Unnamed(*menu), Complaints{});
      menu->close();
    }
  };
  expectMenus(MakeScientificScreen, {u"DEC", u"M/C"});
  expectMenus(MakeMatrixScreen, {u"F(X)", u"Tools", u"MTools", u"MOpers"});
  expectMenus(MakeTwoVariableScreen, {u"MEM"});
}

TEST_F(AccessWalkTest, ANameThatIsMissingIsFoundOfEachKind) {
  for (QWidget* part : std::initializer_list<QWidget*>{
           new QPushButton, new QCheckBox, new QRadioButton, new QComboBox, new QLineEdit,
           new QPlainTextEdit, new QTabBar, new QListWidget, new QTableView, new QProgressBar}) {
    QWidget window;
    window.setWindowTitle("A window");
    part->setParent(&window);
    Show(window);
    EXPECT_EQ(Unnamed(window).size(), 1U) << part->metaObject()->className();
    part->setAccessibleName("A part");
    EXPECT_EQ(Unnamed(window), Complaints{});
  }
}

TEST_F(AccessWalkTest, ATextThatCannotBeReadIsFound) {
  QWidget window;
  for (auto* part : std::initializer_list<QAbstractButton*>{
           new QPushButton("Text"), new QCheckBox("Text"), new QRadioButton("Text")}) {
    part->setParent(&window);
    part->setAccessibleName("Another");
  }
  auto* box = new QGroupBox("Text", &window);
  box->setAccessibleName("Another");
  Show(window);
  EXPECT_EQ(Unreadable(window).size(), 4U);
}

TEST_F(AccessWalkTest, AControlKeepsItsNameWhateverItShows) {
  VisitAll([](QWidget& window) {
    for (int time = 0; time < 2; ++time) {
      for (const auto& part : Settable(window)) {
        const std::string name = NameOf(Of(*part)).toStdString();
        SetByKeyboard(*part, "7");
        EXPECT_EQ(part != nullptr ? NameOf(Of(*part)).toStdString() : name, name);
      }
      EXPECT_EQ(Unreadable(window), Complaints{});
    }
  });
}

std::string Difference(QStringList one, QStringList other) {
  const QString title = one.value(0);
  const QStringList all = one;
  for (const QString& line : other) one.removeAll(line);
  for (const QString& line : all) other.removeAll(line);
  return (title + ": " + one.join("; ") + " / " + other.join("; ")).toStdString();
}

class AccessSameTest : public AccessWalkTest {
 protected:
  using Set = void (*)(QWidget& part, const QString& text);

  /// Presses the button of a dialog that Enter presses.
  static void Accept(QWidget& window) {
    for (auto* button : window.findChildren<QPushButton*>()) {
      if (button->isDefault() && button->isVisible() && button->isEnabled()) return button->click();
    }
  }

  static QStringList StateAfter(const QString& what, const QWidget& window) {
    QCoreApplication::processEvents();
    return QStringList("after " + what) + StateOf(window);
  }

  /// The states that a window and what it leaves behind come to when each of its controls is set.
  std::vector<QStringList> StatesOf(const Window& window, Set set) {
    std::vector<QStringList> states;
    Renew();
    window.show([&](QWidget& shown) {
      for (const auto& part : Settable(shown)) {
        if (part == nullptr || !part->isVisible() || !part->isEnabled()) continue;
        const QString name = NameOf(Of(*part));
        set(*part, Typed(states.size()));
        states.push_back(StateAfter("setting " + name, shown));
        if (part == nullptr || qobject_cast<QAbstractItemView*>(part) == nullptr) continue;
        QTest::keyClick(part, Qt::Key_Up);
        states.push_back(StateAfter("going on from there in " + name, shown));
      }
      // What shows itself only when the screen is shown anew.
      if (FindKey(shown, u"Shift") != nullptr) Tap(shown, u"Shift");
      states.push_back(StateAfter("a key", shown));
      // What is new could not be stored like this.
      if (!QString(window.name).endsWith("New")) Accept(shown);
    });
    states.push_back({ToQt(givenText_), QString::number(given_)});
    window.showAgain([&](QWidget& shown) { states.push_back(StateOf(shown)); });
    return states;
  }
};

TEST_F(AccessSameTest, WhatAScreenReaderSetsIsSetAsByTheKeyboard) {
  for (const auto& windows : {Screens(), Dialogs()}) {
    for (const Window& window : windows) {
      SCOPED_TRACE(window.name);
      const auto typed = StatesOf(window, SetByKeyboard);
      const auto set = StatesOf(window, SetByScreenReader);
      ASSERT_EQ(typed.size(), set.size());
      for (std::size_t i = 0; i < typed.size(); ++i) {
        EXPECT_TRUE(typed[i] == set[i]) << Difference(typed[i], set[i]);
      }
    }
  }
}

}  // namespace
}  // namespace kav::test::access_walk_test
