import QtQuick 2.9
import QtWebEngine 1.5

/// The hidden page that holds the compiler. Scripts run in it as they come,
/// so that it may reach nothing but itself and never waits for an answer of
/// the user.
WebEngineView {
    id: view

    property bool pageLoaded: false

    /// The page is there and takes scripts.
    signal loaded()
    /// The page's process has ended; this object is of no more use.
    signal lost(string reason)

    y: 32
    width: 200
    height: 200
    profile: WebEngineProfile {
        offTheRecord: true
        httpCacheType: WebEngineProfile.NoCache
        persistentCookiesPolicy: WebEngineProfile.NoPersistentCookies
    }
    settings {
        autoLoadIconsForPage: false
        accelerated2dCanvasEnabled: false
        errorPageEnabled: false
        focusOnNavigationEnabled: false
        fullScreenSupportEnabled: false
        hyperlinkAuditingEnabled: false
        javascriptCanAccessClipboard: false
        javascriptCanOpenWindows: false
        localContentCanAccessFileUrls: false
        localContentCanAccessRemoteUrls: false
        localStorageEnabled: false
        pluginsEnabled: false
        webGLEnabled: false
    }
    url: "../html/index.html"

    onLoadProgressChanged: console.log("conversion page: progress", loadProgress)
    onLoadingChanged: {
        console.log("conversion page: state", loadRequest.status, loadRequest.errorString);
        if (loadRequest.status !== WebEngineLoadRequest.LoadSucceededStatus || pageLoaded)
            return;
        pageLoaded = true;
        loaded();
    }
    onRenderProcessTerminated: lost("status " + terminationStatus + ", code " + exitCode)

    onNavigationRequested: {
        if (pageLoaded || request.url.toString() !== view.url.toString())
            request.action = WebEngineNavigationRequest.IgnoreRequest;
    }
    onJavaScriptDialogRequested: {
        request.accepted = true;
        request.dialogReject();
    }
    onAuthenticationDialogRequested: {
        request.accepted = true;
        request.dialogReject();
    }
    onColorDialogRequested: {
        request.accepted = true;
        request.dialogReject();
    }
    onFileDialogRequested: {
        request.accepted = true;
        request.dialogReject();
    }
    onFeaturePermissionRequested: grantFeaturePermission(securityOrigin, feature, false)
}
