#pragma once
// Vision's text recognition, written from Apple's documentation
// (developer.apple.com/documentation/vision/<class>/<member>). Looked up:
// VNImageRequestHandler (initWithCGImage:options:, performRequests:error:),
// VNRecognizeTextRequest (recognitionLevel, usesLanguageCorrection), VNRequest (results),
// VNRecognizedTextObservation (topCandidates:), VNDetectedObjectObservation (boundingBox),
// VNObservation (confidence), VNRecognizedText (string, confidence).
#import <Foundation/Foundation.h>
#include <CoreGraphics/CoreGraphics.h>

NS_ASSUME_NONNULL_BEGIN

typedef float VNConfidence;

typedef NS_ENUM(NSInteger, VNRequestTextRecognitionLevel) {
    VNRequestTextRecognitionLevelAccurate = 0,
    VNRequestTextRecognitionLevelFast = 1,
};

@interface VNObservation : NSObject
@property(readonly) VNConfidence confidence;
@end

@interface VNDetectedObjectObservation : VNObservation
@property(readonly) CGRect boundingBox;
@end

@interface VNRectangleObservation : VNDetectedObjectObservation
@end

@interface VNRecognizedText : NSObject
@property(readonly, copy) NSString* string;
@property(readonly) VNConfidence confidence;
@end

@interface VNRecognizedTextObservation : VNRectangleObservation
- (NSArray<VNRecognizedText*>*)topCandidates:(NSUInteger)maxCandidateCount;
@end

@interface VNRequest : NSObject
@property(readonly, copy, nullable) NSArray* results;
@end

@interface VNImageBasedRequest : VNRequest
@end

@interface VNRecognizeTextRequest : VNImageBasedRequest
@property VNRequestTextRecognitionLevel recognitionLevel;
@property BOOL usesLanguageCorrection;
@property(readonly, copy, nullable) NSArray<VNRecognizedTextObservation*>* results;
@end

@interface VNImageRequestHandler : NSObject
- (instancetype)initWithCGImage:(CGImageRef)image options:(NSDictionary<NSString*, id>*)options;
- (BOOL)performRequests:(NSArray<VNRequest*>*)requests error:(NSError**)error;
@end

NS_ASSUME_NONNULL_END
