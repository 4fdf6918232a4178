#include "mac/MacFirstRunWindow.hpp"

#include <string>

#include "base/Subscription.hpp"
#include "mac/MacRefresher.hpp"
#include "mac/MacPermissionCardView.hpp"
#include "mac/MacViews.hpp"
#include "ui/FirstRunModel.hpp"

namespace {

using Model = quorvane::FirstRunModel;

constexpr CGFloat kWidth = 520;

}  // namespace

// unconfirmed: check on a Mac first. NSWindowController, the window delegate's
// windowWillClose:, NSButton's key equivalent and checkbox state are not in the fact sheet.
@implementation QVFirstRunWindowController {
    Model* _model;
    quorvane::Subscription _changes;
    NSTextField* _permissionsIntro;
    NSStackView* _cards;
    NSStackView* _suggestions;
    NSMutableArray* _targets;
    NSMutableArray* _cardTargets;
    NSMutableArray* _suggestionTargets;
}

- (instancetype)initWithModel:(Model&)model {
    NSWindow* window =
        [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, kWidth + 48, 640)
                                    styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable |
                                              NSWindowStyleMaskResizable
                                      backing:NSBackingStoreBuffered
                                        defer:NO];
    window.title = quorvane::text(Model::kTitle);
    window.releasedWhenClosed = NO;
    self = [super initWithWindow:window];
    if (!self) {
        return nil;
    }
    _model = &model;
    _targets = [NSMutableArray array];
    _cardTargets = [NSMutableArray array];
    _suggestionTargets = [NSMutableArray array];
    Model* target = _model;
    window.delegate = self;

    _cards = quorvane::makeColumn(12);
    _suggestions = quorvane::makeColumn(10);
    _permissionsIntro = quorvane::makeSecondaryLabel(model.permissionsIntro(), kWidth);
    NSButton* finish = quorvane::makeButton(Model::kFinishTitle, _targets, ^{
      target->finish();
    });
    // Return presses it.
    finish.keyEquivalent = @"\r";
    NSStackView* content = quorvane::makeColumn(14, @[
        quorvane::makeHeading(Model::kTitle, 22),
        quorvane::makeWrappingLabel(Model::kIntro, kWidth),
        // The permissions follow the picks, since only the picked tools' are asked for.
        quorvane::makeHeading(Model::kPickTitle, 15),
        _suggestions,
        quorvane::makeHeading(Model::kPermissionsTitle, 15),
        _permissionsIntro,
        _cards,
        finish,
    ]);

    NSScrollView* scroll = quorvane::makeScrollView(content, 24);
    [window.contentView addSubview:scroll];
    quorvane::pinEdges(scroll, window.contentView, 0);
    [window center];

    [self refresh];
    __weak QVFirstRunWindowController* weakSelf = self;
    QVRefresher* refresher = [[QVRefresher alloc] initWithRefresh:^{
      [weakSelf refresh];
    }];
    _changes = model.subscribe([refresher] { [refresher request]; });
    return self;
}

- (void)refresh {
    _permissionsIntro.stringValue = quorvane::text(_model->permissionsIntro());
    quorvane::fillPermissionCards(_cards, *_model, _cardTargets, kWidth);
    quorvane::removeArrangedViews(_suggestions, _suggestionTargets);
    const auto suggestions = _model->suggestions();
    if (suggestions.empty()) {
        [_suggestions
            addArrangedSubview:quorvane::makeSecondaryLabel(Model::kNothingToPick, kWidth)];
    }
    Model* model = _model;
    for (const auto& suggestion : suggestions) {
        const std::string toolID = suggestion.toolID;
        NSButton* box = quorvane::makeCheckbox(suggestion.name, suggestion.isPicked,
                                               _suggestionTargets, ^(bool on) {
                                                 model->setPicked(toolID, on);
                                               });
        [_suggestions addArrangedSubview:quorvane::makeColumn(2, @[
                          box, quorvane::makeSecondaryLabel(suggestion.summary, kWidth - 20)
                      ])];
    }
}

- (void)windowWillClose:(NSNotification*)notification {
    // Closed without "Get Started": not shown again, and nothing is switched on.
    _model->dismiss();
}

@end
