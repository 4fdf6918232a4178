#include "mac/MacMenuPanelView.hpp"

#include <string>

#include "base/Subscription.hpp"
#include "mac/MacRefresher.hpp"
#include "mac/MacViews.hpp"
#include "ui/MenuModel.hpp"
#include "ui/TileGrid.hpp"

using quorvane::TileGrid;

// unconfirmed: check on a Mac first. NSButton's image position, push-on-push-off type,
// bordered flag, key equivalents and tool tips, NSBox's separator type and the stack-view
// edge insets are not in the fact sheet.
@implementation QVMenuPanelView {
    quorvane::MenuModel* _model;
    quorvane::Subscription _changes;
    NSStackView* _grid;
    NSMutableArray* _tileTargets;
    NSMutableArray* _targets;
}

- (instancetype)initWithModel:(quorvane::MenuModel&)model {
    self = [super initWithFrame:NSZeroRect];
    if (!self) {
        return nil;
    }
    _model = &model;
    _tileTargets = [NSMutableArray array];
    _targets = [NSMutableArray array];
    self.orientation = NSUserInterfaceLayoutOrientationVertical;
    self.alignment = NSLayoutAttributeLeading;
    self.spacing = 8;
    self.edgeInsets = NSEdgeInsetsMake(12, 12, 12, 12);

    _grid = quorvane::makeColumn(TileGrid::kSpacing);
    [self addArrangedSubview:_grid];
    NSBox* separator = [[NSBox alloc] initWithFrame:NSZeroRect];
    separator.boxType = NSBoxSeparator;
    [self addArrangedSubview:separator];
    [separator.widthAnchor constraintEqualToConstant:TileGrid::kWidth].active = YES;
    quorvane::MenuModel* menu = _model;
    [self addArrangedSubview:[self menuButton:quorvane::MenuModel::kSettingsTitle
                                          key:@","
                                       action:^{
                                         menu->openSettings();
                                       }]];
    [self addArrangedSubview:[self menuButton:quorvane::MenuModel::kQuitTitle
                                          key:@"q"
                                       action:^{
                                         menu->quit();
                                       }]];
    [self rebuildTiles];

    __weak QVMenuPanelView* weakSelf = self;
    QVRefresher* refresher = [[QVRefresher alloc] initWithRefresh:^{
      [weakSelf rebuildTiles];
    }];
    _changes = model.subscribe([refresher] { [refresher request]; });
    return self;
}

- (NSButton*)menuButton:(const char*)title key:(NSString*)key action:(void (^)(void))action {
    NSButton* button = quorvane::makeButton(title, _targets, action);
    button.bordered = NO;
    button.keyEquivalent = key;
    button.keyEquivalentModifierMask = NSEventModifierFlagCommand;
    return button;
}

- (void)rebuildTiles {
    quorvane::removeArrangedViews(_grid, _tileTargets);
    const auto tiles = _model->tiles();
    if (tiles.empty()) {
        [_grid addArrangedSubview:quorvane::makeSecondaryLabel(quorvane::MenuModel::kEmptyText,
                                                               TileGrid::kWidth)];
    }
    for (const auto& row : TileGrid::rows(tiles)) {
        NSStackView* line = quorvane::makeRow(TileGrid::kSpacing);
        for (const auto& tile : row) {
            [line addArrangedSubview:[self tile:tile]];
        }
        [_grid addArrangedSubview:line];
    }
    [self setFrameSize:self.fittingSize];
}

- (NSButton*)tile:(const quorvane::MenuModel::Tile&)tile {
    quorvane::MenuModel* model = _model;
    const std::string toolID = tile.toolID;
    NSButton* button = quorvane::makeButton(tile.title, _tileTargets, ^{
      model->press(toolID);
    });
    NSImage* image = [NSImage imageWithSystemSymbolName:quorvane::text(tile.systemImage)
                               accessibilityDescription:nil];
    if (image) {
        button.image = image;
        button.imagePosition = NSImageAbove;
    }
    [button setButtonType:NSButtonTypePushOnPushOff];
    button.state = quorvane::stateValue(tile.isOn);
    button.toolTip = quorvane::text(tile.status);
    quorvane::fixSize(button, TileGrid::kTileWidth, TileGrid::kTileHeight);
    return button;
}

@end
