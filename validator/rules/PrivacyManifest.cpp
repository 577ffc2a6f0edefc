// SPDX-License-Identifier: MIT
#include "PrivacyManifest.h"

#include "Wording.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace lumora
{

namespace
{

constexpr auto categoryPrefix = "NSPrivacyAccessedAPICategory"_L1;

constexpr const char *listedKits =
    "Abseil AFNetworking Alamofire AppAuth BoringSSL openssl_grpc Capacitor Charts connectivity_plus Cordova "
    "device_info_plus DKImagePickerController DKPhotoGallery FBAEMKit FBLPromises FBSDKCoreKit FBSDKCoreKit_Basics "
    "FBSDKLoginKit FBSDKShareKit file_picker FirebaseABTesting FirebaseAuth FirebaseCore FirebaseCoreDiagnostics "
    "FirebaseCoreExtension FirebaseCoreInternal FirebaseCrashlytics FirebaseDynamicLinks FirebaseFirestore "
    "FirebaseInstallations FirebaseMessaging FirebaseRemoteConfig Flutter flutter_inappwebview "
    "flutter_local_notifications fluttertoast FMDB geolocator_apple GoogleDataTransport GoogleSignIn "
    "GoogleToolboxForMac GoogleUtilities grpcpp GTMAppAuth GTMSessionFetcher hermes image_picker_ios IQKeyboardManager "
    "IQKeyboardManagerSwift Kingfisher leveldb Lottie MBProgressHUD nanopb OneSignal OneSignalCore OneSignalExtension "
    "OneSignalOutcomes OpenSSL OrderedSet package_info package_info_plus path_provider path_provider_ios Promises "
    "Protobuf Reachability RealmSwift RxCocoa RxRelay RxSwift SDWebImage share_plus shared_preferences_ios SnapKit "
    "sqflite Starscream SVProgressHUD SwiftyGif SwiftyJSON Toast UnityFramework url_launcher url_launcher_ios "
    "video_player_avfoundation wakelock webview_flutter_wkwebview";

const RequiredReason *reasonNamed(const QString &category)
{
    for (const RequiredReason &each : requiredReasons()) {
        if (category == QLatin1StringView(each.category))
            return &each;
    }
    return nullptr;
}

/// Keys of a dictionary of the manifest that nobody knows are a fault of it.
void findUnknownKeys(const QVariantMap &dictionary, const QStringList &known, PrivacyManifest &manifest)
{
    for (const QString &key : dictionary.keys()) {
        if (!known.contains(key))
            manifest.faults += worded("FOUND_UNKNOWN_KEY", {key});
    }
}

void readAccess(const QVariantMap &access, PrivacyManifest &manifest)
{
    findUnknownKeys(access, {u"NSPrivacyAccessedAPIType"_s, u"NSPrivacyAccessedAPITypeReasons"_s}, manifest);
    const QString type = access.value(u"NSPrivacyAccessedAPIType"_s).toString();
    const QString category = type.startsWith(categoryPrefix) ? type.mid(categoryPrefix.size()) : QString();
    const RequiredReason *known = reasonNamed(category);
    if (known == nullptr) {
        manifest.faults += worded("FOUND_UNKNOWN_TYPE", {type});
        return;
    }
    const QStringList allowed = QString::fromLatin1(known->reasons).split(u' ');
    const QVariantList reasons = access.value(u"NSPrivacyAccessedAPITypeReasons"_s).toList();
    if (reasons.isEmpty())
        manifest.faults += worded("FOUND_NO_REASON_FOR", {category});
    for (const QVariant &reason : reasons) {
        if (!allowed.contains(reason.toString()))
            manifest.faults += worded("FOUND_UNKNOWN_REASON", {reason.toString(), category});
        manifest.reasons[category] += reason.toString();
    }
    if (!manifest.reasons.contains(category))
        manifest.reasons.insert(category, {});
}

} // namespace

const QList<RequiredReason> &requiredReasons()
{
    static const QList<RequiredReason> all{
        {"FileTimestamp",
         "_stat _fstat _lstat _fstatat _getattrlist _getattrlistbulk _fgetattrlist _getattrlistat _NSFileCreationDate "
         "_NSFileModificationDate _NSURLContentModificationDateKey _NSURLCreationDateKey",
         "fileModificationDate", "DDA9.1 C617.1 3B52.1 0A2A.1"},
        {"SystemBootTime", "_mach_absolute_time", "systemUptime", "35F9.1 8FFB.1 3D61.1"},
        {"DiskSpace",
         "_statfs _statvfs _fstatfs _fstatvfs _NSFileSystemFreeSize _NSFileSystemSize _NSURLVolumeAvailableCapacityKey "
         "_NSURLVolumeAvailableCapacityForImportantUsageKey _NSURLVolumeAvailableCapacityForOpportunisticUsageKey "
         "_NSURLVolumeTotalCapacityKey",
         "", "85F4.1 E174.1 7D9E.1 B728.1"},
        {"ActiveKeyboards", "", "activeInputModes", "3EC4.1 54BD.1"},
        {"UserDefaults", "_OBJC_CLASS_$_NSUserDefaults", "", "CA92.1 1C8F.1 C56D.1 AC6B.1"},
    };
    return all;
}

bool isListedKit(const QString &name)
{
    static const QStringList names = QString::fromLatin1(listedKits).split(u' ');
    static const QSet<QString> known(names.cbegin(), names.cend());
    return known.contains(name);
}

PrivacyManifest readPrivacyManifest(const QVariantMap &list)
{
    static const QString collectedKey = u"NSPrivacyCollectedDataType"_s;
    PrivacyManifest manifest;
    findUnknownKeys(list,
                    {u"NSPrivacyTracking"_s, u"NSPrivacyTrackingDomains"_s, u"NSPrivacyCollectedDataTypes"_s,
                     u"NSPrivacyAccessedAPITypes"_s},
                    manifest);
    const QVariant tracking = list.value(u"NSPrivacyTracking"_s);
    if (tracking.isValid() && tracking.typeId() != QMetaType::Bool)
        manifest.faults += worded("FOUND_TRACKING_NO_BOOLEAN");
    manifest.tracks = tracking.toBool();
    manifest.trackingDomains = list.value(u"NSPrivacyTrackingDomains"_s).toStringList();
    const QVariantList collected = list.value(u"NSPrivacyCollectedDataTypes"_s).toList();
    manifest.collectedDataTypes = collected.size();
    for (const QVariant &each : collected) {
        const QVariantMap type = each.toMap();
        findUnknownKeys(
            type, {collectedKey, collectedKey + u"Linked", collectedKey + u"Tracking", collectedKey + u"Purposes"},
            manifest);
        if (type.value(u"NSPrivacyCollectedDataType"_s).toString().isEmpty())
            manifest.faults += worded("FOUND_TYPE_MISSING");
        else if (type.value(u"NSPrivacyCollectedDataTypePurposes"_s).toList().isEmpty())
            manifest.faults += worded("FOUND_NO_PURPOSES", {type.value(u"NSPrivacyCollectedDataType"_s).toString()});
    }
    if (manifest.tracks && manifest.trackingDomains.isEmpty() && collected.isEmpty())
        manifest.faults += worded("FOUND_TRACKING_EMPTY");
    for (const QVariant &access : list.value(u"NSPrivacyAccessedAPITypes"_s).toList())
        readAccess(access.toMap(), manifest);
    return manifest;
}

} // namespace lumora
