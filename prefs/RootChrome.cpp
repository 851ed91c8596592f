#include "prefs/Appearance.h"
#include "prefs/Images.h"
#include "prefs/QMRoot.h"
#include "prefs/Quillmere.h"

namespace quillmere {

using namespace platform;

namespace {

/// How far down the icon takes the title's place, in points.
constexpr double iconOffset = 60.0;

constexpr CGSize headerPictureSize = CGSizeMake(120, 120);

UIImage bundleImage(const char* format) {
  return UIImage::imageWithContentsOfFile(
      NSString::stringWithFormat(format, {NSString(bundlePath)}));
}

}  // namespace

bool QMRoot::init() {
  const bool initialised = QMPage::init();
  if (initialised) installEnableSwitch();
  // Also after a refusal: there is no navigation item then to take it.
  installTitleView();
  return initialised;
}

void QMRoot::installEnableSwitch() {
  enableSwitch = UISwitch::init();
  enableSwitch.setOnTintColor(accentColor());
  enableSwitch.layer().setBorderWidth(1.0);
  enableSwitch.layer().setBorderColor(UIColor::whiteColor().CGColor());
  enableSwitch.layer().setCornerRadius(enableSwitch.frame().size.height / 2.0);
  enableSwitch.setClipsToBounds(true);
  enableSwitch.setFrame(CGRectInset(enableSwitch.frame(), -1.0, -1.0));
  enableSwitch.addTarget(*this, "toggleState", UIControlEvents::TouchUpInside);
  navigationItem().setRightBarButtonItem(UIBarButtonItem::initWithCustomView(enableSwitch));
}

void QMRoot::installTitleView() {
  navigationItem().setTitleView(UIView::init());

  titleLabel = UILabel::initWithFrame(CGRectMake(0, 0, 10, 10));
  titleLabel.setFont(UIFont::boldSystemFontOfSize(17.0));
  titleLabel.setTranslatesAutoresizingMaskIntoConstraints(false);
  titleLabel.setText(navigationItem().title());
  titleLabel.setText(NSString::stringWithFormat("%@", {NSString(productName)}));
  titleLabel.setTextColor(UIColor::whiteColor());
  titleLabel.setTextAlignment(NSTextAlignment::Center);
  navigationItem().titleView().addSubview(titleLabel);

  iconView = UIImageView::initWithFrame(CGRectMake(0, 0, 10, 10));
  iconView.setContentMode(UIViewContentMode::ScaleAspectFit);
  iconView.setImage(bundleImage("%@/Icon@2x.png"));
  iconView.setTranslatesAutoresizingMaskIntoConstraints(false);
  iconView.setAlpha(0.0);
  navigationItem().titleView().addSubview(iconView);

  const UIView titleView = navigationItem().titleView();
  NSLayoutConstraint::activateConstraints({
      titleLabel.topAnchor().constraintEqualToAnchor(titleView.topAnchor()),
      titleLabel.leadingAnchor().constraintEqualToAnchor(titleView.leadingAnchor()),
      titleLabel.trailingAnchor().constraintEqualToAnchor(titleView.trailingAnchor()),
      titleLabel.bottomAnchor().constraintEqualToAnchor(titleView.bottomAnchor()),
      iconView.topAnchor().constraintEqualToAnchor(titleView.topAnchor()),
      iconView.leadingAnchor().constraintEqualToAnchor(titleView.leadingAnchor()),
      iconView.trailingAnchor().constraintEqualToAnchor(titleView.trailingAnchor()),
      iconView.bottomAnchor().constraintEqualToAnchor(titleView.bottomAnchor()),
  });
}

void QMRoot::viewDidLoad() {
  QMPage::viewDidLoad();
  const CGRect frame = CGRectMake(0, -50, table().bounds().size.width, 130);
  const UIImage picture = rescaleImage(bundleImage("%@/Header.png"), headerPictureSize);
  UIImageView header = UIImageView::initWithFrame(frame);
  header.setImage(picture);
  header.setBackgroundColor(UIColor::clearColor());
  header.setContentMode(UIViewContentMode::Center);
  header.setAutoresizingMask(UIViewAutoresizing::FlexibleWidth);
  table().setTableHeaderView(header);
}

void QMRoot::viewWillAppear(Animated animated) {
  QMPage::viewWillAppear(animated);
  titleLabel.setText(navigationItem().title());
  setEnableSwitchState();
}

void QMRoot::scrollViewDidScroll(const UIScrollView& scrollView) {
  // Asked for on every callback: there is no note of which half is showing that could go stale.
  if (scrollView.contentOffset().y > iconOffset) {
    UIView::animateWithDuration(0.2, [this] {
      iconView.setAlpha(1.0);
      titleLabel.setAlpha(0.0);
    });
  } else {
    UIView::animateWithDuration(0.2, [this] {
      iconView.setAlpha(0.0);
      titleLabel.setAlpha(1.0);
    });
  }
}

}  // namespace quillmere
