#include "mac/MacSettingsPageView.hpp"

#include <cmath>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "base/Observable.hpp"
#include "base/CallIfSet.hpp"
#include "base/Overloaded.hpp"
#include "base/Subscription.hpp"
#include "input/ShortcutRecorder.hpp"
#include "mac/MacActionTarget.hpp"
#include "mac/MacViewNode.hpp"
#include "mac/MacViews.hpp"
#include "ui/SettingsRowDisplay.hpp"

namespace {

using Row = quorvane::SettingsRow;

struct PageState {
    quorvane::SettingsPage page;
    quorvane::Subscription changes;
};

}  // namespace

// unconfirmed: check on a Mac first. Of the AppKit below only NSBeep is in the fact sheet:
// NSButton (hasDestructiveAction), NSPopUpButton, NSSlider (tick marks), NSStepper,
// NSTextField (currentEditor), NSOpenPanel, NSBundle and the stack-view calls are written from
// Apple's reference.
@implementation QVSettingsPageView {
    std::unique_ptr<PageState> _state;
    CGFloat _width;
    // The targets of the controls, and one block per binding that reads it into its control.
    NSMutableArray* _targets;
    NSMutableArray<void (^)(void)>* _updates;
}

- (instancetype)initWithPage:(quorvane::SettingsPage)page
                      source:(const quorvane::Observable*)source
                       width:(CGFloat)width {
    self = [super initWithFrame:NSZeroRect];
    if (!self) {
        return nil;
    }
    _state = std::make_unique<PageState>();
    _state->page = std::move(page);
    _width = width;
    _targets = [NSMutableArray array];
    _updates = [NSMutableArray array];
    self.orientation = NSUserInterfaceLayoutOrientationVertical;
    self.alignment = NSLayoutAttributeLeading;
    self.spacing = 20;
    for (const auto& section : _state->page.sections) {
        [self addArrangedSubview:[self viewForSection:section]];
    }
    if (source) {
        __weak QVSettingsPageView* weakSelf = self;
        _state->changes = source->subscribe([weakSelf] { [weakSelf refresh]; });
    }
    [self refresh];
    return self;
}

- (void)refresh {
    for (void (^update)(void) in _updates) {
        update();
    }
}

- (NSView*)viewForSection:(const quorvane::SettingsSection&)section {
    NSStackView* column = quorvane::makeColumn(10);
    for (const auto& heading : quorvane::sectionHeading(section)) {
        [column addArrangedSubview:quorvane::makeView(heading, _targets)];
    }
    for (const auto& row : section.rows) {
        NSView* view = [self viewForRow:row];
        [column addArrangedSubview:view];
        const Row* shown = &row;
        // Stack views leave hidden views out of the layout.
        [_updates addObject:^{
          view.hidden = !quorvane::isShown(*shown);
        }];
    }
    for (const auto& footer : quorvane::sectionFooter(section, _width)) {
        [column addArrangedSubview:quorvane::makeView(footer, _targets)];
    }
    return column;
}

- (NSView*)viewForRow:(const Row&)row {
    return std::visit(
        quorvane::Overloaded{
            [&](const Row::Toggle& toggle) { return [self toggleRow:&toggle]; },
            [&](const Row::Choice& choice) { return [self choiceRow:&choice]; },
            [&](const Row::Slider& slider) { return [self sliderRow:&slider]; },
            [&](const Row::Stepper& stepper) { return [self stepperRow:&stepper]; },
            [&](const Row::TextField& field) { return [self textFieldRow:&field]; },
            [&](const Row::Shortcut& shortcut) { return [self shortcutRow:&shortcut]; },
            [&](const Row::AppList& list) { return [self appListRow:&list]; },
            [&](const Row::ItemList& list) { return [self itemListRow:&list]; },
            [&](const Row::EditableList& list) { return [self editableListRow:&list]; },
            [&](const Row::Note& note) -> NSView* {
                return quorvane::makeSecondaryLabel(note.text, _width);
            },
            [&](const Row::Warning& warning) -> NSView* {
                NSTextField* label = quorvane::makeWrappingLabel("", _width - 24);
                const Row::Warning* shown = &warning;
                [_updates addObject:^{
                  label.stringValue = quorvane::text(shown->current());
                }];
                return quorvane::makeWarning(label);
            },
            [&](const Row::Button& button) { return [self buttonRow:&button]; },
            [&](const Row::Custom& custom) { return [self customRow:&custom]; },
        },
        row.kind);
}

- (NSView*)toggleRow:(const Row::Toggle*)toggle {
    NSButton* box = quorvane::makeCheckbox(toggle->label, false, _targets, ^(bool on) {
      quorvane::callIfSet(toggle->set, on);
    });
    [_updates addObject:^{
      box.state = quorvane::stateValue(quorvane::isOn(*toggle));
    }];
    NSStackView* column = quorvane::makeColumn(2, @[ box ]);
    for (const auto& help : quorvane::toggleHelp(*toggle, _width)) {
        [column addArrangedSubview:quorvane::makeView(help, _targets)];
    }
    return column;
}

- (NSView*)choiceRow:(const Row::Choice*)choice {
    NSPopUpButton* popup = [[NSPopUpButton alloc] initWithFrame:NSZeroRect pullsDown:NO];
    [QVActionTarget bind:popup
                    keep:_targets
                 handler:^(id) {
                   quorvane::chooseItem(*choice, popup.indexOfSelectedItem);
                 }];
    [_updates addObject:^{
      // The items change when the value matches no option (a custom equalizer) or does again.
      const quorvane::ChoiceDisplay display = quorvane::choiceDisplay(*choice);
      [popup removeAllItems];
      for (const std::string& item : display.items) {
          [popup addItemWithTitle:quorvane::text(item)];
      }
      [popup selectItemAtIndex:static_cast<NSInteger>(display.selected)];
    }];
    return quorvane::makeRow(8, @[ quorvane::makeLabel(choice->label), popup ]);
}

- (NSView*)sliderRow:(const Row::Slider*)slider {
    NSSlider* control = [NSSlider sliderWithValue:slider->minimum
                                         minValue:slider->minimum
                                         maxValue:slider->maximum
                                           target:nil
                                           action:nil];
    control.continuous = YES;
    control.numberOfTickMarks = quorvane::tickMarkCount(*slider);
    control.allowsTickMarkValuesOnly = control.numberOfTickMarks > 0;
    [control.widthAnchor constraintEqualToConstant:200].active = YES;
    NSTextField* value = quorvane::makeLabel("");
    [QVActionTarget bind:control
                    keep:_targets
                 handler:^(id) {
                   quorvane::callIfSet(slider->set, control.doubleValue);
                   value.stringValue =
                       quorvane::text(quorvane::valueText(*slider, control.doubleValue));
                 }];
    [_updates addObject:^{
      const double current = quorvane::currentValue(*slider);
      control.doubleValue = current;
      value.stringValue = quorvane::text(quorvane::valueText(*slider, current));
    }];
    return quorvane::makeRow(8, @[ quorvane::makeLabel(slider->label), control, value ]);
}

- (NSView*)stepperRow:(const Row::Stepper*)stepper {
    NSStepper* control = [[NSStepper alloc] initWithFrame:NSZeroRect];
    control.minValue = static_cast<double>(stepper->minimum);
    control.maxValue = static_cast<double>(stepper->maximum);
    control.increment = static_cast<double>(stepper->step);
    control.valueWraps = NO;
    NSTextField* value = quorvane::makeLabel("");
    [QVActionTarget bind:control
                    keep:_targets
                 handler:^(id) {
                   const auto chosen = static_cast<std::int64_t>(std::llround(control.doubleValue));
                   quorvane::callIfSet(stepper->set, chosen);
                   value.stringValue = quorvane::text(quorvane::valueText(*stepper, chosen));
                 }];
    [_updates addObject:^{
      const std::int64_t current = quorvane::currentValue(*stepper);
      control.doubleValue = static_cast<double>(current);
      value.stringValue = quorvane::text(quorvane::valueText(*stepper, current));
    }];
    return quorvane::makeRow(8, @[ quorvane::makeLabel(stepper->label), value, control ]);
}

- (NSView*)textFieldRow:(const Row::TextField*)field {
    NSTextField* control = quorvane::makeCommittingField(field->placeholder, 200, _targets,
                                                         ^(const std::string& text) {
                                                           quorvane::callIfSet(field->set, text);
                                                         });
    [_updates addObject:^{
      quorvane::showUnlessEditing(control, quorvane::currentText(*field));
    }];
    return quorvane::makeRow(8, @[ quorvane::makeLabel(field->label), control ]);
}

- (NSView*)shortcutRow:(const Row::Shortcut*)shortcut {
    using Recorder = quorvane::ShortcutRecorder;
    // The recorder button shows the shortcut itself, so the combination appears once.
    NSButton* record = quorvane::makeButton(Recorder::kEmptyTitle, _targets, ^{
      // A row without a recorder cannot record, and says so.
      if (!quorvane::callIfSet(shortcut->toggleRecording)) {
          NSBeep();
      }
    });
    [record.widthAnchor constraintEqualToConstant:Recorder::kButtonWidth].active = YES;
    NSButton* clear =
        quorvane::makeSymbolButton(Recorder::kClearSymbol, Recorder::kClearLabel, _targets, ^{
          quorvane::callIfSet(shortcut->clear);
        });
    NSTextField* conflict = quorvane::makeSecondaryLabel(shortcut->conflictNotice, _width);
    conflict.textColor = quorvane::color(quorvane::ColorRole::red);
    [_updates addObject:^{
      record.title = quorvane::text(quorvane::recorderTitle(*shortcut));
      clear.hidden = !quorvane::showsClearButton(*shortcut);
      conflict.hidden = !quorvane::showsConflict(*shortcut);
    }];
    NSImageView* symbol = quorvane::makeSymbol(shortcut->symbol, 15);
    // Stack views leave hidden views out of the layout.
    symbol.hidden = shortcut->symbol.empty();
    NSStackView* line =
        quorvane::makeRow(8, @[ symbol, quorvane::makeLabel(shortcut->label), record, clear ]);
    return quorvane::makeColumn(2, @[ line, conflict ]);
}

- (void)stopRecording {
    quorvane::stopRecording(_state->page);
}

// A list of one line per entry, read again on every refresh.
- (NSView*)list:(const quorvane::ListDisplay&)list extra:(NSView*)extra {
    NSStackView* lines = quorvane::makeColumn(2);
    NSStackView* column = quorvane::makeColumn(4, @[ quorvane::makeLabel(list.label), lines ]);
    if (extra) {
        [column addArrangedSubview:extra];
    }
    NSMutableArray* lineTargets = [NSMutableArray array];
    const CGFloat width = _width;
    const quorvane::ListDisplay shown = list;
    [_updates addObject:^{
      quorvane::fillStack(lines, quorvane::listLinesView(shown, width), lineTargets);
    }];
    return column;
}

- (NSView*)appListRow:(const Row::AppList*)list {
    NSButton* add = quorvane::makeButton("Add App…", _targets, ^{
      // unconfirmed: check on a Mac first (NSOpenPanel and NSBundle are not in the fact
      // sheet). Applications are packages, which the panel picks as files.
      NSOpenPanel* panel = [NSOpenPanel openPanel];
      panel.canChooseFiles = YES;
      panel.canChooseDirectories = NO;
      panel.allowsMultipleSelection = NO;
      panel.directoryURL = [NSURL fileURLWithPath:@"/Applications" isDirectory:YES];
      panel.prompt = @"Add";
      if ([panel runModal] != NSModalResponseOK || !list->add) {
          return;
      }
      NSString* bundleID = [NSBundle bundleWithURL:panel.URL].bundleIdentifier;
      if (bundleID) {
          list->add(quorvane::utf8String(bundleID));
      } else {
          NSBeep();
      }
    });
    return [self list:quorvane::listDisplay(*list) extra:add];
}

- (NSView*)itemListRow:(const Row::ItemList*)list {
    return [self list:quorvane::listDisplay(*list) extra:nil];
}

// One line per entry, rebuilt only when the number of entries changes: rebuilding under the
// user's typing would take the field they are typing in away from them. Otherwise each refresh
// puts the values into the fields that are not being edited and updates the warnings.
- (NSView*)editableListRow:(const Row::EditableList*)list {
    NSStackView* lines = quorvane::makeColumn(6);
    NSButton* add = quorvane::makeButton(list->addTitle, _targets, ^{
      quorvane::callIfSet(list->add);
    });
    NSStackView* column = quorvane::makeColumn(6, @[ lines, add ]);
    NSMutableArray* lineTargets = [NSMutableArray array];
    // One block per line that puts its entry into the line's controls.
    NSMutableArray<void (^)(const Row::EditableEntry&)>* lineUpdates = [NSMutableArray array];
    const CGFloat width = _width;
    [_updates addObject:^{
      const auto entries = quorvane::editableEntries(*list);
      if (entries.size() != lineUpdates.count) {
          quorvane::removeArrangedViews(lines, lineTargets);
          [lineUpdates removeAllObjects];
          for (std::size_t index = 0; index < entries.size(); ++index) {
              const auto actions = quorvane::editableLineActions(*list, index, entries.size());
              NSTextField* key = quorvane::makeCommittingField(
                  list->keyPlaceholder, 90, lineTargets, ^(const std::string& text) {
                    actions.setKey(text);
                  });
              NSTextField* value = quorvane::makeCommittingField(
                  list->valuePlaceholder, 220, lineTargets, ^(const std::string& text) {
                    actions.setValue(text);
                  });
              NSStackView* line = quorvane::makeRow(6, @[ key, value ]);
              for (const auto& move : actions.moves) {
                  const std::function<void()> action = move.action;
                  NSButton* button = quorvane::makeButton(move.title, lineTargets, ^{
                    quorvane::callIfSet(action);
                  });
                  button.enabled = action != nullptr;
                  [line addArrangedSubview:button];
              }
              [line addArrangedSubview:quorvane::makeSymbolButton(list->removeSymbol, "Remove",
                                                                  lineTargets, ^{
                                                                    actions.remove();
                                                                  })];
              NSTextField* warningText = quorvane::makeWrappingLabel("", width - 24);
              NSStackView* warning = quorvane::makeWarning(warningText);
              [lines addArrangedSubview:quorvane::makeColumn(2, @[ line, warning ])];
              [lineUpdates addObject:^(const Row::EditableEntry& entry) {
                quorvane::showUnlessEditing(key, entry.key);
                quorvane::showUnlessEditing(value, entry.value);
                warningText.stringValue = quorvane::text(entry.warning);
                warning.hidden = entry.warning.empty();
              }];
          }
      }
      for (std::size_t index = 0; index < entries.size(); ++index) {
          lineUpdates[static_cast<NSUInteger>(index)](entries[index]);
      }
    }];
    return column;
}

- (NSView*)buttonRow:(const Row::Button*)button {
    NSButton* control = quorvane::makeButton(button->title, _targets, ^{
      quorvane::callIfSet(button->action);
    });
    control.hasDestructiveAction = button->role == Row::ButtonRole::destructive;
    return control;
}

- (NSView*)customRow:(const Row::Custom*)custom {
    // A custom row's own view is drawn by its tool; what every page can show is its summary.
    NSTextField* label = quorvane::makeWrappingLabel("", _width);
    [_updates addObject:^{
      label.stringValue = quorvane::text(quorvane::customText(*custom));
    }];
    return label;
}

@end
