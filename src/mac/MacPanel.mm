#include "mac/MacPorts.hpp"

#include <memory>

#include "base/CallIfSet.hpp"
#include "mac/MacFloatingWindow.hpp"
#include "mac/MacFrameworks.h"
#include "mac/MacStrings.hpp"
#include "mac/MacViews.hpp"
#include "ui/LevelBar.hpp"
#include "ui/NoticeLines.hpp"

// unconfirmed: check on a Mac first. Of the AppKit below only the panel's initializer, its style
// mask, backing, level and collection behaviour values are in the fact sheet. NSAnimationContext,
// the animator proxy, NSStackView, NSVisualEffectView, NSImageView, NSImageSymbolConfiguration,
// NSTextField, NSFont's text styles, NSColor, layers and layout constraints were written from
// Apple's reference.

namespace quorvane {

namespace {

NSView* makeLevelBar(const LevelBar& bar) {
    NSStackView* row = makeRow(LevelBar::kSpacing);
    for (int index = 0; index < LevelBar::kSegments; ++index) {
        NSView* segment =
            fixSize([[NSView alloc] init], LevelBar::kSegmentWidth, LevelBar::kSegmentHeight);
        segment.wantsLayer = YES;
        segment.layer.cornerRadius = LevelBar::kCornerRadius;
        // The view's opacity dims the label colour without replacing the colour's own.
        segment.layer.backgroundColor = [NSColor labelColor].CGColor;
        segment.alphaValue = bar.segmentOpacity(index);
        [row addArrangedSubview:segment];
    }
    return row;
}

NSView* makeCard(const HUDCard& card) {
    NSStackView* stack = makeColumn(HUDCard::kSpacing);
    stack.alignment = NSLayoutAttributeCenterX;
    stack.edgeInsets = NSEdgeInsetsMake(HUDCard::kPadding, HUDCard::kPadding, HUDCard::kPadding,
                                        HUDCard::kPadding);

    // An unknown symbol name gives no image; the card then shows its title alone.
    NSImageView* image = makeSymbol(card.systemImage, HUDCard::kSymbolSize);
    image.translatesAutoresizingMaskIntoConstraints = NO;
    [image.heightAnchor constraintEqualToConstant:HUDCard::kSymbolFrameHeight].active = YES;
    [stack addArrangedSubview:image];

    // Headline and detail each wrap within the card rather than being clipped to one line.
    const CGFloat textWidth = HUDCard::kWidth - 2 * HUDCard::kPadding;
    const NoticeLines lines = noticeLines(card.title);
    NSTextField* headline = makeWrappingLabel(lines.headline, textWidth);
    headline.font = [NSFont preferredFontForTextStyle:NSFontTextStyleHeadline options:@{}];
    headline.alignment = NSTextAlignmentCenter;
    [stack addArrangedSubview:headline];
    NSTextField* detail = makeWrappingLabel(lines.detail, textWidth);
    detail.font = [NSFont preferredFontForTextStyle:NSFontTextStyleSubheadline options:@{}];
    detail.textColor = [NSColor secondaryLabelColor];
    detail.alignment = NSTextAlignmentCenter;
    // A stack view leaves hidden views out of its layout.
    detail.hidden = lines.detail.empty();
    [stack addArrangedSubview:detail];

    if (card.level) {
        [stack addArrangedSubview:makeLevelBar(LevelBar{*card.level})];
    }

    NSVisualEffectView* background = makeMaterialBackground(HUDCard::kCornerRadius);
    background.layer.cornerCurve = kCACornerCurveContinuous;
    [background addSubview:stack];
    pinEdges(stack, background, 0);
    [background.widthAnchor constraintEqualToConstant:HUDCard::kWidth].active = YES;

    NSView* outer = [[NSView alloc] init];
    [outer addSubview:background];
    pinEdges(background, outer, HUDCard::kOuterPadding);
    return outer;
}

// A non-activating NSPanel that shows a HUDCard drawn with AppKit views.
class MacPanel final : public Panel {
public:
    MacPanel() {
        // Non-activating (style mask 128): showing it never takes focus from the user's app.
        panel_ =
            makeFloatingWindow([NSPanel class], NSZeroRect, NSWindowStyleMaskNonactivatingPanel,
                               NSStatusWindowLevel, [NSColor clearColor]);
        makeClickThrough(panel_);
        // 337: on every Space, stationary, out of window cycling, over full-screen apps.
        panel_.collectionBehavior =
            NSWindowCollectionBehaviorCanJoinAllSpaces | NSWindowCollectionBehaviorStationary |
            NSWindowCollectionBehaviorIgnoresCycle | NSWindowCollectionBehaviorFullScreenAuxiliary;
    }
    MacPanel(const MacPanel&) = delete;
    MacPanel& operator=(const MacPanel&) = delete;

    ~MacPanel() override {
        *alive_ = false;
        [panel_ orderOut:nil];
    }

    void setContent(const HUDCard& card) override {
        @autoreleasepool {
            panel_.contentView = makeCard(card);
        }
    }

    Size fittingSize() const override {
        const NSSize size = panel_.contentView.fittingSize;
        return {size.width, size.height};
    }

    void setFrame(const Rect& frame) override {
        [panel_
            setFrame:NSMakeRect(frame.origin.x, frame.origin.y, frame.size.width, frame.size.height)
             display:YES];
    }

    void fadeTo(double alpha, Seconds duration, std::function<void()> completion) override {
        NSPanel* panel = panel_;
        const std::shared_ptr<bool> alive = alive_;
        [NSAnimationContext
            runAnimationGroup:^(NSAnimationContext* context) {
              context.duration = duration.count();
              panel.animator.alphaValue = alpha;
            }
            completionHandler:^{
              if (*alive) {
                  callIfSet(completion);
              }
            }];
    }

    void orderFrontRegardless() override { [panel_ orderFrontRegardless]; }

    void orderOut() override { [panel_ orderOut:nil]; }

    bool isVisible() const override { return panel_.visible; }

private:
    NSPanel* panel_;
    // Read by pending fade completions, which must not run once the panel is gone.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

}  // namespace

std::unique_ptr<Panel> makeMacPanel() { return std::make_unique<MacPanel>(); }

}  // namespace quorvane
