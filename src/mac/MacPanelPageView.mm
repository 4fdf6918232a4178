#if !__has_feature(objc_arc)
#error "Compile with -fobjc-arc"
#endif

#include "mac/MacPanelPageView.hpp"

#include <memory>
#include <string>

#include "base/Subscription.hpp"
#include "mac/MacSettingsPageView.hpp"

namespace {

struct PanelPageState {
    quorvane::PanelContent::Page page;
    std::string layout;
    quorvane::Subscription changes;
};

}  // namespace

// unconfirmed: check on a Mac first. NSTrackingArea's options and the mouseEntered:/mouseExited:
// overrides are written from Apple's reference, not from the fact sheet.
@implementation QVPanelPageView {
    std::unique_ptr<PanelPageState> _state;
    QVSettingsPageView* _content;
}

- (instancetype)initWithPage:(quorvane::PanelContent::Page)page {
    self = [super initWithFrame:NSZeroRect];
    if (!self) {
        return nil;
    }
    _state = std::make_unique<PanelPageState>();
    _state->page = std::move(page);
    [self rebuild];
    if (_state->page.source) {
        __weak QVPanelPageView* weakSelf = self;
        // Subscribed after the page view, so it has re-read its bindings before this looks.
        _state->changes = _state->page.source->subscribe([weakSelf] { [weakSelf sourceChanged]; });
    }
    if (_state->page.pointerInside) {
        NSTrackingArea* area =
            [[NSTrackingArea alloc] initWithRect:NSZeroRect
                                         options:NSTrackingMouseEnteredAndExited |
                                                 NSTrackingActiveAlways | NSTrackingInVisibleRect
                                           owner:self
                                        userInfo:nil];
        [self addTrackingArea:area];
    }
    return self;
}

- (void)rebuild {
    const auto& page = _state->page;
    _state->layout = page.layoutKey ? page.layoutKey() : std::string();
    [_content removeFromSuperview];
    _content =
        [[QVSettingsPageView alloc] initWithPage:page.make ? page.make() : quorvane::SettingsPage {}
                                          source:page.source
                                           width:page.width];
    _content.edgeInsets = NSEdgeInsetsMake(12, 12, 12, 12);
    _content.translatesAutoresizingMaskIntoConstraints = NO;
    [self addSubview:_content];
    [NSLayoutConstraint activateConstraints:@[
        [_content.leadingAnchor constraintEqualToAnchor:self.leadingAnchor],
        [_content.trailingAnchor constraintEqualToAnchor:self.trailingAnchor],
        [_content.topAnchor constraintEqualToAnchor:self.topAnchor],
        [_content.bottomAnchor constraintEqualToAnchor:self.bottomAnchor],
    ]];
}

- (void)sourceChanged {
    if (_state->page.layoutKey && _state->page.layoutKey() != _state->layout) {
        [self rebuild];
    }
}

- (void)mouseEntered:(NSEvent*)event {
    (void)event;
    _state->page.pointerInside(true);
}

- (void)mouseExited:(NSEvent*)event {
    (void)event;
    _state->page.pointerInside(false);
    [self sourceChanged];
}

@end
