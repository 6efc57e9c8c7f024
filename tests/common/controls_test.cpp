// Controls without a toolkit: who is told of a change, what a person can enter, where bounds are.
#include "common/controls.h"

#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/run_time_error.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Events = std::vector<std::string>;

auto fails_with(Failure failure) {
    return testing::Throws<RunTimeError>(testing::Property(&RunTimeError::failure, failure));
}

// --- what a change tells ---

TEST(Property, TellsTheListenerBeforeTheHandler) {
    Form form;
    TextBox box(form, "Text1");
    Events events;
    box.listener = [&] { events.push_back("listener sees " + box.text.get()); };
    box.text.on_change = [&] { events.push_back("handler sees " + box.text.get()); };
    box.text = "JA1QZX";
    EXPECT_THAT(events, ElementsAre("listener sees JA1QZX", "handler sees JA1QZX"));
}

TEST(Property, TellsNobodyOfTheValueThatItHolds) {
    Form form;
    TextBox box(form, "Text1", "JA1QZX");
    int notices = 0;
    box.listener = [&] { ++notices; };
    box.text.on_change = [&] { ++notices; };
    box.text = "JA1QZX";
    EXPECT_EQ(notices, 0);
    box.text = "JA1QZY";
    box.text = "JA1QZY";
    EXPECT_EQ(notices, 2);  // listener and handler, once
}

TEST(Property, RunsItsOwnHandlerOnly) {
    Form form;
    CheckBox box(form, "Check1", "caption");
    Events events;
    box.caption.on_change = [&] { events.push_back("caption"); };
    box.value.on_change = [&] { events.push_back("value"); };
    box.value = true;
    EXPECT_THAT(events, ElementsAre("value"));
}

TEST(Property, TellsOnlyTheListenerOfItsOwnControl) {
    Form form;
    Label changed(form, "Label1");
    Label other(form, "Label2");
    int notices = 0;
    other.listener = [&] { ++notices; };
    changed.caption = "text";
    EXPECT_EQ(changed.caption.get(), "text");
    EXPECT_EQ(notices, 0);
}

TEST(Property, TellsAgainOfWhatItsHandlerChanges) {
    Form form;
    TextBox box(form, "Text1");
    Events events;
    box.listener = [&] { events.push_back("listener sees " + box.text.get()); };
    box.text.on_change = [&] {
        events.push_back("handler sees " + box.text.get());
        box.text = "JA1QZX";
    };
    box.text = "ja1qzx";
    EXPECT_THAT(events, ElementsAre("listener sees ja1qzx", "handler sees ja1qzx",
                                    "listener sees JA1QZX", "handler sees JA1QZX"));
    EXPECT_EQ(box.text.get(), "JA1QZX");
}

TEST(Property, ReadsLikeTheValueThatItHolds) {
    Form form;
    Label label(form, "Label1", "text");
    const std::string& caption = label.caption;
    EXPECT_EQ(caption, "text");
    EXPECT_TRUE(label.caption == std::string("text"));
    EXPECT_FALSE(label.caption == std::string("other"));
    EXPECT_TRUE(label.enabled);
}

TEST(Control, StartsEnabledVisibleAndBlack) {
    Form form;
    const Control control(form, "Control1");
    EXPECT_EQ(control.name(), "Control1");
    EXPECT_TRUE(control.enabled);
    EXPECT_TRUE(control.visible);
    EXPECT_EQ(control.fore_colour.get(), colours::black);
    EXPECT_EQ(control.tool_tip.get(), "");
}

TEST(Control, TellsItsListenerOnceOfEveryProperty) {
    Form form;
    Label label(form, "Label1");
    Frame frame(form, "Frame1");
    CommandButton button(form, "Command1", "");
    CheckBox check_box(form, "Check1", "");
    OptionGroup group(form, "Option1", {"a", "b"});
    TextBox text_box(form, "Text1");
    ListBox list(form, "List1");
    ProgressBar bar(form, "Bar1");
    TabControl tabs(form, "Tab1");
    struct Change {
        std::string property;
        Control& control;
        std::function<void()> make;
    };
    const std::vector<Change> changes{
        {"enabled", label, [&] { label.enabled = false; }},
        {"visible", label, [&] { label.visible = false; }},
        {"fore_colour", label, [&] { label.fore_colour = colours::red; }},
        {"tool_tip", label, [&] { label.tool_tip = "tip"; }},
        {"label's caption", label, [&] { label.caption = "text"; }},
        {"large_letters", label, [&] { label.large_letters = true; }},
        {"frame's caption", frame, [&] { frame.caption = "text"; }},
        {"button's caption", button, [&] { button.caption = "text"; }},
        {"check box's caption", check_box, [&] { check_box.caption = "text"; }},
        {"check box's value", check_box, [&] { check_box.value = true; }},
        {"buttons", group,
         [&] {
             group.buttons = {{"c", true, colours::black}};
         }},
        {"group's index", group, [&] { group.index = 0; }},
        {"text", text_box, [&] { text_box.text = "text"; }},
        {"rows", list, [&] { list.rows = {"row"}; }},
        {"list's index", list, [&] { list.index = 0; }},
        {"maximum", bar, [&] { bar.maximum = 10; }},
        {"bar's value", bar, [&] { bar.value = 5; }},
        {"tab", tabs, [&] { tabs.tab = 2; }},
    };
    for (const Change& change : changes) {
        int notices = 0;
        change.control.listener = [&] { ++notices; };
        change.make();
        EXPECT_EQ(notices, 1) << change.property;
        change.make();
        EXPECT_EQ(notices, 1) << change.property << " again";
        change.control.listener = nullptr;
    }
}

// --- forms ---

TEST(Form, FindsAControlByItsWholeName) {
    Form form;
    const Label first(form, "lblMsg");
    const Label second(form, "lblMsg2");
    EXPECT_EQ(form.find("lblMsg"), &first);
    EXPECT_EQ(form.find("lblMsg2"), &second);
    EXPECT_EQ(form.find("lblMs"), nullptr);
    EXPECT_EQ(form.find("lblMsg3"), nullptr);
    EXPECT_EQ(form.find(""), nullptr);
}

TEST(Form, HasItsControlsInTheOrderTheyWereMade) {
    Form form;
    EXPECT_THAT(form.controls(), IsEmpty());
    Label label(form, "b");
    TextBox box(form, "a");
    EXPECT_THAT(form.controls(), ElementsAre(&label, &box));
}

TEST(Form, KnowsNoControlOfAnother) {
    Form form;
    Form other;
    const Label label(form, "Label1");
    EXPECT_EQ(form.find("Label1"), &label);
    EXPECT_EQ(other.find("Label1"), nullptr);
}

TEST(ControlArray, NamesItsElementsWithTheirIndex) {
    Form form;
    ControlArray<Label, 11> labels(form, "lblRmks1");
    EXPECT_EQ(labels[0].name(), "lblRmks1(0)");
    EXPECT_EQ(labels[1].name(), "lblRmks1(1)");
    EXPECT_EQ(labels[10].name(), "lblRmks1(10)");
    EXPECT_EQ(form.controls().size(), 11U);
}

TEST(ControlArray, ElementsAreFoundInTheForm) {
    Form form;
    ControlArray<TextBox, 3> boxes(form, "Text");
    EXPECT_EQ(form.find("Text(0)"), &boxes[0]);
    EXPECT_EQ(form.find("Text(2)"), &boxes[2]);
    EXPECT_EQ(form.find("Text(3)"), nullptr);
    EXPECT_EQ(form.find("Text"), nullptr);
    ASSERT_EQ(form.find("Text(1)"), &boxes[1]);
    EXPECT_TRUE(form.find("Text(1)")->enter("JA1QZX"));
    EXPECT_EQ(boxes[0].text.get(), "");
    EXPECT_EQ(boxes[1].text.get(), "JA1QZX");
    EXPECT_EQ(boxes[2].text.get(), "");
}

TEST(ControlArray, IsWalkedInTheOrderOfItsIndexes) {
    Form form;
    ControlArray<TextBox, 3> boxes(form, "Text");
    Events names;
    for (const TextBox& box : boxes) {
        names.push_back(box.name());
    }
    EXPECT_THAT(names, ElementsAre("Text(0)", "Text(1)", "Text(2)"));
}

// --- buttons ---

TEST(CommandButton, RunsItsClickWhenPressed) {
    Form form;
    CommandButton button(form, "cmdStart", "start");
    int clicks = 0;
    button.Click = [&] { ++clicks; };
    button.press();
    button.press();
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(button.caption.get(), "start");
}

TEST(CommandButton, RunsNothingWhileDisabled) {
    Form form;
    CommandButton button(form, "cmdStart", "start");
    int clicks = 0;
    button.Click = [&] { ++clicks; };
    button.enabled = false;
    button.press();
    EXPECT_EQ(clicks, 0);
    button.enabled = true;
    button.press();
    EXPECT_EQ(clicks, 1);
}

TEST(CommandButton, WithoutAClickCanBePressed) {
    Form form;
    CommandButton button(form, "cmdStop", "stop");
    EXPECT_NO_THROW(button.press());
}

TEST(CommandButton, CanDisableItselfInItsClick) {
    Form form;
    CommandButton button(form, "cmdStart", "start");
    int clicks = 0;
    button.Click = [&] {
        ++clicks;
        button.enabled = false;
    };
    button.press();
    button.press();
    EXPECT_EQ(clicks, 1);
}

TEST(ToolButton, HasItsKeyAsName) {
    Form form;
    ToolButton button(form, "contestj_n");
    EXPECT_EQ(button.name(), "contestj_n");
    EXPECT_EQ(form.find("contestj_n"), &button);
    int clicks = 0;
    button.Click = [&] { ++clicks; };
    button.press();
    EXPECT_EQ(clicks, 1);
}

TEST(MenuEntry, IsPressedLikeAButton) {
    Form form;
    MenuEntry entry(form, "mnuOpen", "open");
    int clicks = 0;
    entry.Click = [&] { ++clicks; };
    entry.press();
    entry.enabled = false;
    entry.press();
    EXPECT_EQ(clicks, 1);
}

// --- what a person enters ---

TEST(Enter, IsRefusedByControlsWithoutAValue) {
    Form form;
    Control control(form, "Control1");
    Label label(form, "Label1", "text");
    Frame frame(form, "Frame1", "text");
    CommandButton button(form, "Command1", "text");
    bool clicked = false;
    button.Click = [&] { clicked = true; };
    for (const std::string value : {"", "0", "1", "other"}) {
        EXPECT_FALSE(control.enter(value)) << value;
        EXPECT_FALSE(label.enter(value)) << value;
        EXPECT_FALSE(frame.enter(value)) << value;
        EXPECT_FALSE(button.enter(value)) << value;
    }
    EXPECT_EQ(label.caption.get(), "text");
    EXPECT_EQ(frame.caption.get(), "text");
    EXPECT_EQ(button.caption.get(), "text");
    EXPECT_FALSE(clicked);
}

TEST(Enter, ChecksABoxWithAllThatFollows) {
    Form form;
    CheckBox box(form, "Check1", "caption");
    EXPECT_FALSE(box.value);
    Events events;
    box.listener = [&] { events.push_back("listener"); };
    box.value.on_change = [&] { events.push_back("click"); };
    EXPECT_TRUE(box.enter("1"));
    EXPECT_TRUE(box.value);
    EXPECT_THAT(events, ElementsAre("listener", "click"));
    EXPECT_TRUE(box.enter("1"));  // it can be given, but changes nothing
    EXPECT_EQ(events.size(), 2U);
    EXPECT_TRUE(box.enter("0"));
    EXPECT_FALSE(box.value);
    EXPECT_EQ(events.size(), 4U);
}

TEST(Enter, RefusesWhatNoCheckBoxTakes) {
    Form form;
    CheckBox box(form, "Check1", "caption", true);
    int notices = 0;
    box.listener = [&] { ++notices; };
    for (const std::string value : {"", "2", "-1", "00", "01", " 0", "0 ", "true", "０"}) {
        EXPECT_FALSE(box.enter(value)) << value;
    }
    EXPECT_TRUE(box.value);
    EXPECT_EQ(notices, 0);
}

// --- text boxes ---

TEST(TextBox, ShowsItsTextUnlessItIsHidden) {
    Form form;
    TextBox box(form, "Text1", "secret");
    EXPECT_FALSE(box.hidden_text);
    int notices = 0;
    box.listener = [&] { ++notices; };
    box.hidden_text = true;
    EXPECT_EQ(notices, 1);
    EXPECT_EQ(box.text.get(), "secret");
}

TEST(TextBox, CaretMovesBehindTheLastCharacter) {
    Form form;
    TextBox box(form, "Text1", "JA1漢ｱ");
    EXPECT_EQ(box.caret.get(), 0U);
    box.move_caret_to_end();
    EXPECT_EQ(box.caret.get(), 5U);
}

TEST(Enter, TakesAnyTextInATextBox) {
    Form form;
    TextBox box(form, "Text1", "old");
    int changes = 0;
    box.text.on_change = [&] { ++changes; };
    EXPECT_TRUE(box.enter(" 漢字\n"));
    EXPECT_EQ(box.text.get(), " 漢字\n");
    EXPECT_TRUE(box.enter(""));
    EXPECT_EQ(box.text.get(), "");
    EXPECT_TRUE(box.enter(""));
    EXPECT_EQ(changes, 2);
}

TEST(Enter, ChoosesAButtonThatIsThere) {
    Form form;
    OptionGroup group(form, "Option1", {"a", "b", "c"}, 1);
    int clicks = 0;
    group.index.on_change = [&] { ++clicks; };
    EXPECT_TRUE(group.enter("2"));
    EXPECT_EQ(group.index.get(), 2);
    EXPECT_TRUE(group.enter("0"));
    EXPECT_EQ(group.index.get(), 0);
    EXPECT_TRUE(group.enter("0"));
    EXPECT_EQ(clicks, 2);
}

const std::vector<std::string> no_indexes_below_3{
    "", "3", "-1", "99999999999999999999", "4294967296", "1x", " 1", "1 ", "+1", "1.0", "b", "１",
};

TEST(Enter, RefusesAButtonThatIsNotThere) {
    Form form;
    OptionGroup group(form, "Option1", {"a", "b", "c"}, 1);
    int notices = 0;
    group.listener = [&] { ++notices; };
    for (const std::string& value : no_indexes_below_3) {
        EXPECT_FALSE(group.enter(value)) << value;
    }
    EXPECT_EQ(group.index.get(), 1);
    EXPECT_EQ(notices, 0);
    OptionGroup empty(form, "Option2", {});
    EXPECT_FALSE(empty.enter("0"));
}

TEST(Enter, ChoosesARowThatIsThere) {
    Form form;
    ListBox list(form, "List1");
    list.rows = {"a", "b", "c"};
    int clicks = 0;
    list.index.on_change = [&] { ++clicks; };
    EXPECT_TRUE(list.enter("2"));
    EXPECT_EQ(list.index.get(), 2);
    EXPECT_TRUE(list.enter("2"));
    EXPECT_EQ(clicks, 1);
}

TEST(Enter, RefusesARowThatIsNotThere) {
    Form form;
    ListBox list(form, "List1");
    EXPECT_FALSE(list.enter("0"));
    list.rows = {"a", "b", "c"};
    for (const std::string& value : no_indexes_below_3) {
        EXPECT_FALSE(list.enter(value)) << value;
    }
    EXPECT_EQ(list.index.get(), ListBox::none);
    list.rows = {"a"};
    EXPECT_FALSE(list.enter("1"));
    EXPECT_TRUE(list.enter("0"));
}

TEST(OptionGroup, HasAButtonForEveryCaptionAndNoneChosen) {
    Form form;
    const OptionGroup group(form, "Option1", {"総合", "CW"});
    EXPECT_EQ(group.index.get(), OptionGroup::none);
    EXPECT_THAT(group.buttons.get(), ElementsAre(OptionGroup::Button{"総合", true, colours::black},
                                                 OptionGroup::Button{"CW", true, colours::black}));
}

TEST(OptionGroup, MakingOneTellsNobody) {
    Form form;
    OptionGroup group(form, "Option1", {"a", "b"}, 1);
    int clicks = 0;
    group.index.on_change = [&] { ++clicks; };
    group.index = 1;
    EXPECT_EQ(clicks, 0);
    group.index = OptionGroup::none;
    EXPECT_EQ(clicks, 1);
}

TEST(ListBox, StartsWithoutRowsAndNoneChosen) {
    Form form;
    const ListBox list(form, "List1");
    EXPECT_THAT(list.rows.get(), IsEmpty());
    EXPECT_EQ(list.index.get(), ListBox::none);
}

// --- progress ---

TEST(ProgressBar, StepsToItsMaximumAndStaysThere) {
    Form form;
    ProgressBar bar(form, "Bar1");
    bar.restart(3);
    EXPECT_EQ(bar.value.get(), 0U);
    EXPECT_EQ(bar.maximum.get(), 3U);
    std::vector<std::size_t> values;
    bar.value.on_change = [&] { values.push_back(bar.value); };
    for (int i = 0; i < 5; ++i) {
        bar.step();
    }
    EXPECT_THAT(values, ElementsAre(1, 2, 3));
    EXPECT_EQ(bar.value.get(), 3U);
}

TEST(ProgressBar, StartsAtTheStart) {
    Form form;
    const ProgressBar bar(form, "Bar1");
    EXPECT_EQ(bar.value.get(), 0U);
    EXPECT_GE(bar.maximum.get(), 1U);
}

TEST(ProgressBar, HasAMaximumOfAtLeastOne) {
    Form form;
    ProgressBar bar(form, "Bar1");
    bar.restart(5);
    bar.restart(0);
    EXPECT_EQ(bar.maximum.get(), 1U);
    bar.step();
    bar.step();
    EXPECT_EQ(bar.value.get(), 1U);
}

TEST(ProgressBar, ShowsNoValueAboveTheMaximumWhileItRestarts) {
    Form form;
    ProgressBar bar(form, "Bar1");
    bar.restart(10);
    bar.value = 10;
    int notices = 0;
    bar.listener = [&] {
        ++notices;
        EXPECT_LE(bar.value.get(), bar.maximum.get());
    };
    bar.restart(2);
    EXPECT_EQ(bar.value.get(), 0U);
    EXPECT_EQ(bar.maximum.get(), 2U);
    EXPECT_EQ(notices, 2);
}

// --- tables ---

TEST(Grid, StartsEmptyAndBlack) {
    Form form;
    const Grid grid(form, "Grid1", 2, {1440, 720, 300});
    EXPECT_EQ(grid.rows(), 2U);
    EXPECT_THAT(grid.column_widths(), ElementsAre(1440, 720, 300));
    for (std::size_t row = 0; row < 2; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            EXPECT_EQ(grid.cell(row, column), (Grid::Cell{"", colours::black}));
        }
    }
}

TEST(Grid, KeepsATextAndAColourForEveryCell) {
    Form form;
    Grid grid(form, "Grid1", 3, {100, 100});
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 2; ++column) {
            grid.set_text(row, column, std::to_string(row) + "-" + std::to_string(column));
        }
    }
    grid.set_fore_colour(1, 1, colours::red);
    EXPECT_EQ(grid.cell(0, 0), (Grid::Cell{"0-0", colours::black}));
    EXPECT_EQ(grid.cell(0, 1), (Grid::Cell{"0-1", colours::black}));
    EXPECT_EQ(grid.cell(1, 0), (Grid::Cell{"1-0", colours::black}));
    EXPECT_EQ(grid.cell(1, 1), (Grid::Cell{"1-1", colours::red}));
    EXPECT_EQ(grid.cell(2, 0), (Grid::Cell{"2-0", colours::black}));
    EXPECT_EQ(grid.cell(2, 1), (Grid::Cell{"2-1", colours::black}));
    grid.set_text(1, 1, "new");
    EXPECT_EQ(grid.cell(1, 1), (Grid::Cell{"new", colours::red}));
}

TEST(Grid, TellsItsListenerOfEveryChangeAndOfNothingElse) {
    Form form;
    Grid grid(form, "Grid1", 2, {100});
    Events seen;
    grid.listener = [&] { seen.push_back(grid.cell(1, 0).text); };
    grid.set_text(1, 0, "");
    grid.set_fore_colour(1, 0, colours::black);
    EXPECT_THAT(seen, IsEmpty());
    grid.set_text(1, 0, "a");
    grid.set_text(1, 0, "a");
    EXPECT_THAT(seen, ElementsAre("a"));
    grid.set_fore_colour(1, 0, colours::blue);
    grid.set_fore_colour(1, 0, colours::blue);
    EXPECT_THAT(seen, ElementsAre("a", "a"));
}

TEST(Grid, FailsForACellThatIsNotThere) {
    Form form;
    Grid grid(form, "Grid1", 2, {100, 100, 100});
    int notices = 0;
    grid.listener = [&] { ++notices; };
    constexpr std::size_t far = std::numeric_limits<std::size_t>::max();
    const std::vector<std::pair<std::size_t, std::size_t>> outside{
        {2, 0}, {0, 3}, {1, 3}, {2, 3}, {far, 0}, {0, far}, {far, far},
    };
    for (const auto& [row, column] : outside) {
        SCOPED_TRACE(testing::Message() << row << ", " << column);
        const std::size_t at_row = row;
        const std::size_t at_column = column;
        EXPECT_THAT([&] { grid.cell(at_row, at_column); }, fails_with(Failure::subscript));
        EXPECT_THAT([&] { grid.set_text(at_row, at_column, "x"); }, fails_with(Failure::subscript));
        EXPECT_THAT([&] { grid.set_fore_colour(at_row, at_column, colours::red); },
                    fails_with(Failure::subscript));
    }
    EXPECT_EQ(notices, 0);
    for (std::size_t column = 0; column < 3; ++column) {
        EXPECT_EQ(grid.cell(1, column), (Grid::Cell{"", colours::black}));
    }
}

TEST(Grid, WithoutRowsHasNoCell) {
    Form form;
    const Grid grid(form, "Grid1", 0, {100});
    EXPECT_EQ(grid.rows(), 0U);
    EXPECT_THAT([&] { grid.cell(0, 0); }, fails_with(Failure::subscript));
}

}  // namespace
}  // namespace veldrana
