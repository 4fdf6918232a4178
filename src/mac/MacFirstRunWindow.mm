#include "mac/MacFirstRunWindow.hpp"

#include "base/Subscription.hpp"
#include "mac/MacRefresher.hpp"
#include "mac/MacViewNode.hpp"
#include "mac/MacViews.hpp"
#include "ui/FirstRunModel.hpp"

namespace {

using Model = quorvane::FirstRunModel;

constexpr CGFloat kWidth = 520;

}  // namespace

// unconfirmed: check on a Mac first. NSWindowController and the window delegate's
// windowWillClose: are not in the fact sheet.
@implementation QVFirstRunWindowController {
    Model* _model;
    quorvane::Subscription _changes;
    NSStackView* _content;
    NSMutableArray* _targets;
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
    window.delegate = self;

    _content = quorvane::makeColumn(0);
    NSScrollView* scroll = quorvane::makeScrollView(_content, 24);
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
    quorvane::fillStack(_content, _model->view(kWidth), _targets);
}

- (void)windowWillClose:(NSNotification*)notification {
    // Closed without "Get Started": not shown again, and nothing is switched on.
    _model->dismiss();
}

@end
