#if !__has_feature(objc_arc)
#error "Compile with -fobjc-arc"
#endif

#include "mac/MacSettingsPageView.hpp"

#include <cmath>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "base/Observable.hpp"
#include "base/Overloaded.hpp"
#include "base/Subscription.hpp"
#include "input/ShortcutRecorder.hpp"
#include "mac/MacActionTarget.hpp"
#include "mac/MacStrings.hpp"
#include "mac/MacViews.hpp"
#include "ui/SettingsRowDisplay.hpp"

namespace {

using Row = quorvane::SettingsRow;

struct PageState {
    quorvane::SettingsPage page;
    quorvane::Subscription changes;
};

// The row's recorder listens for the next key combination (or stops listening); a row without
// one cannot record, and says so.
void recordShortcut(const Row::Shortcut& row) {
    if (row.toggleRecording) {
        row.toggleRecording();
    } else {
        NSBeep();
    }
}

NSString* sliderText(const Row::Slider& slider, double value) {
    return slider.format ? quorvane::text(slider.format(value))
                         : [NSString stringWithFormat:@"%g", value];
}

NSString* stepperText(const Row::Stepper& stepper, std::int64_t value) {
    return stepper.format ? quorvane::text(stepper.format(value))
                          : [NSString stringWithFormat:@"%lld", static_cast<long long>(value)];
}

NSControlStateValue stateValue(bool on) {
    return on ? NSControlStateValueOn : NSControlStateValueOff;
}

}  // namespace

// unconfirmed: check on a Mac first. Of the AppKit below only NSBeep is in the fact sheet:
// NSButton (checkbox, push button, state, hasDestructiveAction), NSPopUpButton, NSSlider
// (tick marks), NSStepper, NSTextField (placeholder, the cell's sendsActionOnEndEditing,
// currentEditor), NSOpenPanel, NSBundle and the stack-view calls are written from Apple's
// reference.
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
    if (!section.title.empty()) {
        [column addArrangedSubview:quorvane::makeHeading(section.title, 13)];
    }
    for (const auto& row : section.rows) {
        NSView* view = [self viewForRow:row];
        [column addArrangedSubview:view];
        if (row.isVisible) {
            const auto* isVisible = &row.isVisible;
            // Stack views leave hidden views out of the layout.
            [_updates addObject:^{
              view.hidden = !(*isVisible)();
            }];
        }
    }
    if (!section.footer.empty()) {
        [column addArrangedSubview:quorvane::makeSecondaryLabel(section.footer, _width)];
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
            [&](const Row::Warning& warning) { return [self warningRow:&warning]; },
            [&](const Row::Button& button) { return [self buttonRow:&button]; },
            [&](const Row::Custom& custom) { return [self customRow:&custom]; },
        },
        row.kind);
}

- (NSView*)labelled:(const std::string&)label control:(NSView*)control {
    NSStackView* row = quorvane::makeRow(8);
    [row addArrangedSubview:quorvane::makeLabel(label)];
    [row addArrangedSubview:control];
    return row;
}

- (NSView*)toggleRow:(const Row::Toggle*)toggle {
    NSButton* box = [NSButton checkboxWithTitle:quorvane::text(toggle->label)
                                         target:nil
                                         action:nil];
    [QVActionTarget bind:box
                    keep:_targets
                 handler:^(id) {
                   if (toggle->set) {
                       toggle->set(box.state == NSControlStateValueOn);
                   }
                 }];
    [_updates addObject:^{
      box.state = stateValue(toggle->get && toggle->get());
    }];
    if (toggle->help.empty()) {
        return box;
    }
    NSStackView* column = quorvane::makeColumn(2);
    [column addArrangedSubview:box];
    [column addArrangedSubview:quorvane::makeSecondaryLabel(toggle->help, _width)];
    return column;
}

- (NSView*)choiceRow:(const Row::Choice*)choice {
    NSPopUpButton* popup = [[NSPopUpButton alloc] initWithFrame:NSZeroRect pullsDown:NO];
    [QVActionTarget
           bind:popup
           keep:_targets
        handler:^(id) {
          const quorvane::ChoiceDisplay display = quorvane::choiceDisplay(*choice);
          const NSInteger index = popup.indexOfSelectedItem;
          if (choice->set && index >= 0 && static_cast<std::size_t>(index) < display.optionCount) {
              choice->set(choice->options[static_cast<std::size_t>(index)].value);
          }
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
    return [self labelled:choice->label control:popup];
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
                   if (slider->set) {
                       slider->set(control.doubleValue);
                   }
                   value.stringValue = sliderText(*slider, control.doubleValue);
                 }];
    [_updates addObject:^{
      const double current = slider->get ? slider->get() : slider->minimum;
      control.doubleValue = current;
      value.stringValue = sliderText(*slider, current);
    }];
    NSStackView* row = quorvane::makeRow(8);
    [row addArrangedSubview:quorvane::makeLabel(slider->label)];
    [row addArrangedSubview:control];
    [row addArrangedSubview:value];
    return row;
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
                   if (stepper->set) {
                       stepper->set(chosen);
                   }
                   value.stringValue = stepperText(*stepper, chosen);
                 }];
    [_updates addObject:^{
      const std::int64_t current = stepper->get ? stepper->get() : stepper->minimum;
      control.doubleValue = static_cast<double>(current);
      value.stringValue = stepperText(*stepper, current);
    }];
    NSStackView* row = quorvane::makeRow(8);
    [row addArrangedSubview:quorvane::makeLabel(stepper->label)];
    [row addArrangedSubview:value];
    [row addArrangedSubview:control];
    return row;
}

- (NSView*)textFieldRow:(const Row::TextField*)field {
    NSTextField* control = [NSTextField textFieldWithString:@""];
    control.placeholderString = quorvane::text(field->placeholder);
    // Return and leaving the field both commit the text, not every keystroke.
    control.cell.sendsActionOnEndEditing = YES;
    [control.widthAnchor constraintGreaterThanOrEqualToConstant:200].active = YES;
    [QVActionTarget bind:control
                    keep:_targets
                 handler:^(id) {
                   if (field->set) {
                       field->set(quorvane::utf8String(control.stringValue));
                   }
                 }];
    [_updates addObject:^{
      // Text being typed is the user's; it is not replaced under them.
      if (control.currentEditor == nil && field->get) {
          control.stringValue = quorvane::text(field->get());
      }
    }];
    return [self labelled:field->label control:control];
}

- (NSView*)shortcutRow:(const Row::Shortcut*)shortcut {
    // The recorder button shows the shortcut itself, so the combination appears once.
    NSButton* record =
        [NSButton buttonWithTitle:quorvane::text(quorvane::ShortcutRecorder::kEmptyTitle)
                           target:nil
                           action:nil];
    [record.widthAnchor constraintEqualToConstant:quorvane::ShortcutRecorder::kButtonWidth].active =
        YES;
    [QVActionTarget bind:record
                    keep:_targets
                 handler:^(id) {
                   recordShortcut(*shortcut);
                 }];
    NSButton* clear = [NSButton
        buttonWithImage:quorvane::makeSymbolImage(quorvane::ShortcutRecorder::kClearSymbol,
                                                  quorvane::ShortcutRecorder::kClearLabel)
                 target:nil
                 action:nil];
    clear.bordered = NO;
    clear.toolTip = quorvane::text(quorvane::ShortcutRecorder::kClearLabel);
    [QVActionTarget bind:clear
                    keep:_targets
                 handler:^(id) {
                   if (shortcut->clear) {
                       shortcut->clear();
                   }
                 }];
    NSTextField* conflict = quorvane::makeSecondaryLabel(shortcut->conflictNotice, _width);
    conflict.textColor = [NSColor systemRedColor];
    [_updates addObject:^{
      if (shortcut->buttonTitle) {
          record.title = quorvane::text(shortcut->buttonTitle());
      }
      clear.hidden = !quorvane::showsClearButton(*shortcut);
      conflict.hidden = !(shortcut->hasConflict && shortcut->hasConflict());
    }];
    NSStackView* line = quorvane::makeRow(8);
    if (!shortcut->symbol.empty()) {
        [line addArrangedSubview:quorvane::makeSymbol(shortcut->symbol, 15)];
    }
    [line addArrangedSubview:quorvane::makeLabel(shortcut->label)];
    [line addArrangedSubview:record];
    [line addArrangedSubview:clear];
    NSStackView* column = quorvane::makeColumn(2);
    [column addArrangedSubview:line];
    [column addArrangedSubview:conflict];
    return column;
}

- (void)stopRecording {
    quorvane::stopRecording(_state->page);
}

// A list of one line per entry, read again on every refresh, each entry with a remove button
// when `remove` is given one.
- (NSView*)listTitled:(const std::string&)label
                empty:(const std::string&)emptyText
              entries:(std::vector<std::pair<std::string, void (^)(void)>> (^)(void))entries
                extra:(NSView*)extra {
    NSStackView* column = quorvane::makeColumn(4);
    [column addArrangedSubview:quorvane::makeLabel(label)];
    NSStackView* lines = quorvane::makeColumn(2);
    [column addArrangedSubview:lines];
    if (extra) {
        [column addArrangedSubview:extra];
    }
    NSMutableArray* lineTargets = [NSMutableArray array];
    const CGFloat width = _width;
    const std::string empty = emptyText;
    [_updates addObject:^{
      quorvane::removeArrangedViews(lines);
      [lineTargets removeAllObjects];
      const auto items = entries();
      if (items.empty()) {
          [lines addArrangedSubview:quorvane::makeSecondaryLabel(empty, width)];
      }
      for (const auto& [title, remove] : items) {
          NSStackView* line = quorvane::makeRow(6);
          [line addArrangedSubview:quorvane::makeLabel(title)];
          if (remove) {
              NSButton* button = [NSButton buttonWithTitle:@"−" target:nil action:nil];
              void (^removeItem)(void) = remove;
              [QVActionTarget bind:button
                              keep:lineTargets
                           handler:^(id) {
                             // Removing the entry rebuilds these lines, which would free
                             // this button and its target while this action still runs.
                             quorvane::runSoon(removeItem);
                           }];
              [line addArrangedSubview:button];
          }
          [lines addArrangedSubview:line];
      }
    }];
    return column;
}

- (NSView*)appListRow:(const Row::AppList*)list {
    NSButton* add = [NSButton buttonWithTitle:@"Add App…" target:nil action:nil];
    [QVActionTarget bind:add
                    keep:_targets
                 handler:^(id) {
                   // unconfirmed: check on a Mac first (NSOpenPanel and NSBundle are not in
                   // the fact sheet). Applications are packages, which the panel picks as files.
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
                 }];
    return [self
        listTitled:list->label
             empty:list->emptyText
           entries:^{
             std::vector<std::pair<std::string, void (^)(void)>> entries;
             for (const auto& app : list->items ? list->items() : std::vector<Row::AppEntry>{}) {
                 const std::string bundleID = app.bundleID;
                 void (^remove)(void) = nil;
                 if (list->remove) {
                     remove = ^{
                       list->remove(bundleID);
                     };
                 }
                 entries.emplace_back(app.name.empty() ? app.bundleID : app.name, remove);
             }
             return entries;
           }
             extra:add];
}

- (NSView*)itemListRow:(const Row::ItemList*)list {
    return [self listTitled:list->label
                      empty:list->emptyText
                    entries:^{
                      std::vector<std::pair<std::string, void (^)(void)>> entries;
                      const auto items = list->items ? list->items() : std::vector<std::string>{};
                      for (std::size_t index = 0; index < items.size(); ++index) {
                          void (^remove)(void) = nil;
                          if (list->remove) {
                              remove = ^{
                                list->remove(index);
                              };
                          }
                          entries.emplace_back(items[index], remove);
                      }
                      return entries;
                    }
                      extra:nil];
}

// One line per entry, rebuilt only when the number of entries changes: rebuilding under the
// user's typing would take the field they are typing in away from them. Otherwise each refresh
// puts the values into the fields that are not being edited and updates the warnings.
- (NSView*)editableListRow:(const Row::EditableList*)list {
    NSStackView* column = quorvane::makeColumn(6);
    NSStackView* lines = quorvane::makeColumn(6);
    [column addArrangedSubview:lines];
    NSButton* add = [NSButton buttonWithTitle:quorvane::text(list->addTitle) target:nil action:nil];
    [QVActionTarget bind:add
                    keep:_targets
                 handler:^(id) {
                   if (list->add) {
                       list->add();
                   }
                 }];
    [column addArrangedSubview:add];
    NSMutableArray* lineTargets = [NSMutableArray array];
    NSMutableArray<NSTextField*>* keys = [NSMutableArray array];
    NSMutableArray<NSTextField*>* values = [NSMutableArray array];
    NSMutableArray<NSView*>* warnings = [NSMutableArray array];
    NSMutableArray<NSTextField*>* warningTexts = [NSMutableArray array];
    const CGFloat width = _width;
    // Commits a field's text when the user presses Return or leaves the field.
    NSTextField* (^field)(const std::string&, CGFloat, void (^)(NSString*)) = ^NSTextField*(
        const std::string& placeholder, CGFloat minimumWidth, void (^commit)(NSString*)) {
        NSTextField* control = [NSTextField textFieldWithString:@""];
        control.placeholderString = quorvane::text(placeholder);
        control.cell.sendsActionOnEndEditing = YES;
        [control.widthAnchor constraintGreaterThanOrEqualToConstant:minimumWidth].active = YES;
        [QVActionTarget bind:control
                        keep:lineTargets
                     handler:^(id) {
                       commit(control.stringValue);
                     }];
        return control;
    };
    [_updates addObject:^{
      const auto entries = list->entries ? list->entries() : std::vector<Row::EditableEntry>{};
      if (entries.size() != keys.count) {
          quorvane::removeArrangedViews(lines);
          [lineTargets removeAllObjects];
          [keys removeAllObjects];
          [values removeAllObjects];
          [warnings removeAllObjects];
          [warningTexts removeAllObjects];
          for (std::size_t index = 0; index < entries.size(); ++index) {
              NSTextField* key = field(list->keyPlaceholder, 90, ^(NSString* text) {
                if (list->setKey) {
                    list->setKey(index, quorvane::utf8String(text));
                }
              });
              NSTextField* value = field(list->valuePlaceholder, 220, ^(NSString* text) {
                if (list->setValue) {
                    list->setValue(index, quorvane::utf8String(text));
                }
              });
              NSStackView* line = quorvane::makeRow(6);
              [line addArrangedSubview:key];
              [line addArrangedSubview:value];
              if (list->move) {
                  NSButton* up = [NSButton buttonWithTitle:@"↑" target:nil action:nil];
                  up.enabled = index > 0;
                  [QVActionTarget bind:up
                                  keep:lineTargets
                               handler:^(id) {
                                 list->move(index, index - 1);
                               }];
                  NSButton* down = [NSButton buttonWithTitle:@"↓" target:nil action:nil];
                  down.enabled = index + 1 < entries.size();
                  [QVActionTarget bind:down
                                  keep:lineTargets
                               handler:^(id) {
                                 list->move(index, index + 1);
                               }];
                  [line addArrangedSubview:up];
                  [line addArrangedSubview:down];
              }
              NSButton* remove = [NSButton
                  buttonWithImage:[NSImage
                                      imageWithSystemSymbolName:quorvane::text(list->removeSymbol)
                                       accessibilityDescription:@"Remove"]
                           target:nil
                           action:nil];
              remove.bordered = NO;
              [QVActionTarget bind:remove
                              keep:lineTargets
                           handler:^(id) {
                             if (list->remove) {
                                 list->remove(index);
                             }
                           }];
              [line addArrangedSubview:remove];
              NSImageView* icon = quorvane::makeSymbol("exclamationmark.triangle.fill", 13);
              icon.contentTintColor = [NSColor systemOrangeColor];
              NSTextField* warningText = quorvane::makeWrappingLabel("", width - 24);
              NSStackView* warning = quorvane::makeRow(6);
              warning.alignment = NSLayoutAttributeTop;
              [warning addArrangedSubview:icon];
              [warning addArrangedSubview:warningText];
              NSStackView* entry = quorvane::makeColumn(2);
              [entry addArrangedSubview:line];
              [entry addArrangedSubview:warning];
              [lines addArrangedSubview:entry];
              [keys addObject:key];
              [values addObject:value];
              [warnings addObject:warning];
              [warningTexts addObject:warningText];
          }
      }
      for (std::size_t index = 0; index < entries.size(); ++index) {
          const auto i = static_cast<NSUInteger>(index);
          if (keys[i].currentEditor == nil) {
              keys[i].stringValue = quorvane::text(entries[index].key);
          }
          if (values[i].currentEditor == nil) {
              values[i].stringValue = quorvane::text(entries[index].value);
          }
          warningTexts[i].stringValue = quorvane::text(entries[index].warning);
          warnings[i].hidden = entries[index].warning.empty();
      }
    }];
    return column;
}

- (NSView*)warningRow:(const Row::Warning*)warning {
    NSImageView* icon = quorvane::makeSymbol("exclamationmark.triangle.fill", 13);
    icon.contentTintColor = [NSColor systemOrangeColor];
    NSStackView* row = quorvane::makeRow(6);
    row.alignment = NSLayoutAttributeTop;
    [row addArrangedSubview:icon];
    [row addArrangedSubview:quorvane::makeWrappingLabel(warning->text, _width - 24)];
    return row;
}

- (NSView*)buttonRow:(const Row::Button*)button {
    NSButton* control = [NSButton buttonWithTitle:quorvane::text(button->title)
                                           target:nil
                                           action:nil];
    control.hasDestructiveAction = button->role == Row::ButtonRole::destructive;
    [QVActionTarget bind:control
                    keep:_targets
                 handler:^(id) {
                   if (button->action) {
                       button->action();
                   }
                 }];
    return control;
}

- (NSView*)customRow:(const Row::Custom*)custom {
    // A custom row's own view is drawn by its tool; what every page can show is its summary.
    NSTextField* label = quorvane::makeWrappingLabel("", _width);
    [_updates addObject:^{
      label.stringValue = quorvane::text(custom->summary ? custom->summary() : custom->name);
    }];
    return label;
}

@end
