#pragma once

// What the bundle uses of MessageUI, declared as Apple documents it, for building without an SDK.

#import <UIKit/UIKit.h>

@protocol MFMailComposeViewControllerDelegate;

typedef NS_ENUM(NSInteger, MFMailComposeResult) {
  MFMailComposeResultCancelled,
  MFMailComposeResultSaved,
  MFMailComposeResultSent,
  MFMailComposeResultFailed,
};

@interface MFMailComposeViewController : UINavigationController
@property(nonatomic, weak) id<MFMailComposeViewControllerDelegate> mailComposeDelegate;
- (void)setSubject:(NSString*)subject;
- (void)setToRecipients:(NSArray<NSString*>*)toRecipients;
- (void)setMessageBody:(NSString*)body isHTML:(BOOL)isHTML;
- (void)addAttachmentData:(NSData*)attachment
                 mimeType:(NSString*)mimeType
                 fileName:(NSString*)filename;
@end

@protocol MFMailComposeViewControllerDelegate <NSObject>
@optional
- (void)mailComposeController:(MFMailComposeViewController*)controller
          didFinishWithResult:(MFMailComposeResult)result
                        error:(NSError*)error;
@end
