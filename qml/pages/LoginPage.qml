import QtQuick
import "../controls"
import "../forms"

// The face of the main window while no user is signed in: sign-in, account creation and password reset.
Item {
    id: page

    readonly property int page_id_sign_in: 0
    readonly property int page_id_create_account: 1
    readonly property int page_id_verify_account: 2
    readonly property int page_id_reset_password: 3
    readonly property int page_id_reset_password_complete: 4
    property int currentPage: page_id_sign_in

    // The address shown on the verify and reset-complete pages.
    property string str_email: ""
    // Error text of the last failed request.
    property string serverResponse: ""
    property color serverResponseColor: Theme.errorRed
    readonly property list<string> notCompanyEmail: [
        "gmail.com", "googlemail.com", "yahoo.com", "ymail.com", "hotmail.com", "outlook.com", "live.com",
        "msn.com", "icloud.com", "me.com", "aol.com", "gmx.com", "gmx.net", "gmx.de", "web.de", "mail.com",
        "mail.ru", "yandex.com", "yandex.ru", "proton.me", "protonmail.com", "tutanota.com", "qq.com",
        "163.com", "126.com", "naver.com", "mailinator.com", "guerrillamail.com", "10minutemail.com",
        "yopmail.com", "trashmail.com"
    ]

    readonly property var device: deviceControl // qmllint disable unqualified
    readonly property var service: network // qmllint disable unqualified

    // Created on first use, because a single form makes the first frame earlier.
    readonly property CreateAccountForm createAccountForm: createAccountLoader.item as CreateAccountForm
    readonly property ResetPasswordForm resetPasswordForm: resetPasswordLoader.item as ResetPasswordForm

    // The page whose request was sent last, -1 when none was or the user has left that page.
    property int awaitedPage: -1
    // True until that request has ended.
    property bool busy: false

    function signIn(): void {
        page.submit(signInForm);
    }

    function createAccount(): void {
        page.submit(page.createAccountForm);
    }

    function resetPassword(): void {
        page.submit(page.resetPasswordForm);
    }

    function submit(form: var): void {
        if (page.busy)
            return;
        page.serverResponse = "";
        form.submit();
    }

    function awaitReply(): void {
        page.awaitedPage = page.currentPage;
        page.busy = true;
    }

    // Texts and replies of earlier requests concern neither another form nor the next user.
    function forgetRequest(): void {
        page.serverResponse = "";
        page.awaitedPage = -1;
        page.busy = false;
    }

    // A request that exceeds its time-out fails twice; the last text stays.
    function showFailure(form: int, error: string): void {
        if (page.awaitedPage !== form || page.device.login)
            return;
        page.busy = false;
        page.serverResponse = error;
    }

    function goOn(form: int, next: int): void {
        if (page.awaitedPage === form && !page.device.login)
            page.currentPage = next;
    }

    Keys.onEscapePressed: event => {
        event.accepted = page.currentPage !== page.page_id_sign_in;
        page.currentPage = page.page_id_sign_in;
    }
    Component.onCompleted: signInForm.forceActiveFocus()
    onVisibleChanged: {
        page.forgetRequest();
        if (visible)
            signInForm.forceActiveFocus(); // takes it from the hidden main page
    }
    onCurrentPageChanged: {
        page.forgetRequest();
        switch (page.currentPage) {
        case page.page_id_sign_in:
            // Takes the focus from the hidden fields.
            signInForm.forceActiveFocus();
            break;
        case page.page_id_create_account:
            createAccountLoader.active = true;
            page.createAccountForm.reset();
            page.createAccountForm.focusFirstField();
            break;
        case page.page_id_verify_account:
            verifyLoader.active = true;
            (verifyLoader.item as LoginForm).submitButton.forceActiveFocus();
            break;
        case page.page_id_reset_password:
            resetPasswordLoader.active = true;
            page.resetPasswordForm.reset();
            page.resetPasswordForm.focusFirstField();
            break;
        case page.page_id_reset_password_complete:
            resetCompleteLoader.active = true;
            (resetCompleteLoader.item as LoginForm).submitButton.forceActiveFocus();
            break;
        }
    }

    Connections {
        target: page.service

        function onLoginSuccess(userData: var): void {
            page.device.loginSuccess(userData);
            page.forgetRequest();
            page.currentPage = page.page_id_sign_in;
            signInForm.reset();
            signInForm.submitButton.forceActiveFocus();
        }
        function onLoginFailed(error: string): void {
            page.showFailure(page.page_id_sign_in, error);
        }
        function onRegistrationSuccess(): void {
            page.goOn(page.page_id_create_account, page.page_id_verify_account);
        }
        function onRegistrationFailed(error: string): void {
            page.showFailure(page.page_id_create_account, error);
        }
        function onPasswordResetSent(): void {
            page.goOn(page.page_id_reset_password, page.page_id_reset_password_complete);
        }
        function onPasswordResetFailed(error: string): void {
            page.showFailure(page.page_id_reset_password, error);
        }
    }

    Image {
        anchors.left: parent.left
        anchors.leftMargin: 26
        y: 58
        asynchronous: true // decoded while the window is created
        source: page.currentPage === page.page_id_create_account ? "qrc:/images/background_2_437x576.png"
                                                                 : "qrc:/images/background_1_437x576.png"

        Image {
            anchors.left: parent.left
            anchors.leftMargin: 20
            y: 20
            asynchronous: true
            source: "qrc:/images/vorn_logo_84x26.png"
        }
    }

    SignInForm {
        id: signInForm

        anchors.left: parent.left
        anchors.leftMargin: 521
        height: parent.height
        visible: page.currentPage === page.page_id_sign_in
        serverResponse: page.serverResponse
        serverResponseColor: page.serverResponseColor
        onSubmitted: page.signIn()
        busy: page.busy
        onAccepted: {
            page.awaitReply();
            page.service.login(email, password);
        }
        onLinkClicked: page.currentPage = page.page_id_create_account
        onForgotPassword: page.currentPage = page.page_id_reset_password
    }

    // Qt 6.4 does not create a bound component in a Loader that is activated later, although qmllint asks for
    // bound ones.
    // qmllint disable unqualified
    Loader {
        id: createAccountLoader

        anchors.left: parent.left
        anchors.leftMargin: 521
        height: parent.height
        active: false
        visible: page.currentPage === page.page_id_create_account
        sourceComponent: CreateAccountForm {
            notCompanyEmail: page.notCompanyEmail
            serverResponse: page.serverResponse
            serverResponseColor: page.serverResponseColor
            busy: page.busy
            onSubmitted: page.createAccount()
            onAccepted: {
                page.awaitReply();
                page.str_email = email;
                page.service.registerUser(firstName, lastName, email, password);
            }
            onLinkClicked: page.currentPage = page.page_id_sign_in
        }
    }

    Loader {
        id: verifyLoader

        anchors.left: parent.left
        anchors.leftMargin: 521
        height: parent.height
        active: false
        visible: page.currentPage === page.page_id_verify_account
        sourceComponent: LoginForm {
            title: qsTr("Verify Account")
            tellsSubline: true
            subline: qsTr("We’ve sent a verification link to %1\nPlease check the email to verify your account.").arg(page.str_email)
            submitText: qsTr("Sign In")
            submitY: 280
            onSubmitted: page.currentPage = page.page_id_sign_in
        }
    }

    Loader {
        id: resetPasswordLoader

        anchors.left: parent.left
        anchors.leftMargin: 521
        height: parent.height
        active: false
        visible: page.currentPage === page.page_id_reset_password
        sourceComponent: ResetPasswordForm {
            serverResponse: page.serverResponse
            serverResponseColor: page.serverResponseColor
            busy: page.busy
            onSubmitted: page.resetPassword()
            onAccepted: {
                page.awaitReply();
                page.str_email = email;
                page.service.resetPassword(email);
            }
        }
    }

    Loader {
        id: resetCompleteLoader

        anchors.left: parent.left
        anchors.leftMargin: 521
        height: parent.height
        active: false
        visible: page.currentPage === page.page_id_reset_password_complete
        sourceComponent: LoginForm {
            title: qsTr("Password Reset")
            tellsSubline: true
            subline: qsTr("We sent an email to %1\nPlease check the email to reset your password.").arg(page.str_email)
            submitText: qsTr("Sign In")
            submitY: 280
            onSubmitted: page.currentPage = page.page_id_sign_in
        }
    }
    // qmllint enable unqualified
}
