import QtQuick

// What the window shows while nobody is signed in: sign-in, a new account, a forgotten password.
Item {
    id: page

    readonly property int page_id_sign_in: 0
    readonly property int page_id_create_account: 1
    readonly property int page_id_verify_account: 2
    readonly property int page_id_reset_password: 3
    readonly property int page_id_reset_password_complete: 4
    property int currentPage: page_id_sign_in

    // The address that a letter went to.
    property string str_email: ""
    // The service's answer to a request that failed.
    property string serverResponse: ""
    property color serverResponseColor: "#DB4747"
    readonly property list<string> notCompanyEmail: [
        "gmail.com", "googlemail.com", "yahoo.com", "ymail.com", "hotmail.com", "outlook.com", "live.com",
        "msn.com", "icloud.com", "me.com", "aol.com", "gmx.com", "gmx.net", "gmx.de", "web.de", "mail.com",
        "mail.ru", "yandex.com", "yandex.ru", "proton.me", "protonmail.com", "tutanota.com", "qq.com",
        "163.com", "126.com", "naver.com", "mailinator.com", "guerrillamail.com", "10minutemail.com",
        "yopmail.com", "trashmail.com"
    ]

    readonly property var device: deviceControl // qmllint disable unqualified
    readonly property var service: network // qmllint disable unqualified

    function signIn(): void {
        page.serverResponse = "";
        signInForm.submit();
    }

    function createAccount(): void {
        page.serverResponse = "";
        createAccountForm.submit();
    }

    function resetPassword(): void {
        page.serverResponse = "";
        resetPasswordForm.submit();
    }

    onCurrentPageChanged: {
        page.serverResponse = "";
        switch (page.currentPage) {
        case page.page_id_sign_in:
            // Away from the hidden fields, yet with the address the first stop of the Tab key.
            signInForm.forceActiveFocus();
            break;
        case page.page_id_create_account:
            createAccountForm.reset();
            createAccountForm.focusFirstField();
            break;
        case page.page_id_verify_account:
            verifyForm.submitButton.forceActiveFocus();
            break;
        case page.page_id_reset_password:
            resetPasswordForm.reset();
            resetPasswordForm.focusFirstField();
            break;
        case page.page_id_reset_password_complete:
            resetCompleteForm.submitButton.forceActiveFocus();
            break;
        }
    }

    Connections {
        target: page.service

        function onLoginSuccess(userData: var): void {
            page.device.loginSuccess(userData);
            signInForm.reset();
            signInForm.submitButton.forceActiveFocus();
        }
        function onLoginFailed(error: string): void {
            page.serverResponse = error;
        }
        function onRegistrationSuccess(): void {
            page.currentPage = page.page_id_verify_account;
        }
        function onRegistrationFailed(error: string): void {
            page.serverResponse = error;
        }
        function onPasswordResetSent(): void {
            page.currentPage = page.page_id_reset_password_complete;
        }
        function onPasswordResetFailed(error: string): void {
            page.serverResponse = error;
        }
    }

    Image {
        x: 26
        y: 58
        source: page.currentPage === page.page_id_create_account ? "qrc:/images/background_2_437x576.png"
                                                                 : "qrc:/images/background_1_437x576.png"

        Image {
            x: 20
            y: 20
            source: "qrc:/images/vorn_logo_84x26.png"
        }
    }

    SignInForm {
        id: signInForm

        x: 521
        height: parent.height
        visible: page.currentPage === page.page_id_sign_in
        serverResponse: page.serverResponse
        serverResponseColor: page.serverResponseColor
        onSubmitted: page.signIn()
        onAccepted: page.service.login(email, password)
        onLinkClicked: page.currentPage = page.page_id_create_account
        onForgotPassword: page.currentPage = page.page_id_reset_password
    }

    CreateAccountForm {
        id: createAccountForm

        x: 521
        height: parent.height
        visible: page.currentPage === page.page_id_create_account
        notCompanyEmail: page.notCompanyEmail
        serverResponse: page.serverResponse
        serverResponseColor: page.serverResponseColor
        onSubmitted: page.createAccount()
        onAccepted: {
            page.str_email = email;
            page.service.registerUser(firstName, lastName, email, password);
        }
        onLinkClicked: page.currentPage = page.page_id_sign_in
    }

    LoginForm {
        id: verifyForm

        x: 521
        height: parent.height
        visible: page.currentPage === page.page_id_verify_account
        title: qsTr("Verify Account")
        subline: qsTr("We’ve sent a verification link to %1\nPlease check the email to verify your account.").arg(page.str_email)
        submitText: qsTr("Sign In")
        submitY: 280
        onSubmitted: page.currentPage = page.page_id_sign_in
    }

    ResetPasswordForm {
        id: resetPasswordForm

        x: 521
        height: parent.height
        visible: page.currentPage === page.page_id_reset_password
        serverResponse: page.serverResponse
        serverResponseColor: page.serverResponseColor
        onSubmitted: page.resetPassword()
        onAccepted: {
            page.str_email = email;
            page.service.resetPassword(email);
        }
    }

    LoginForm {
        id: resetCompleteForm

        x: 521
        height: parent.height
        visible: page.currentPage === page.page_id_reset_password_complete
        title: qsTr("Password Reset")
        subline: qsTr("We sent an email to %1\nPlease check the email to reset your password.").arg(page.str_email)
        submitText: qsTr("Sign In")
        submitY: 280
        onSubmitted: page.currentPage = page.page_id_sign_in
    }
}
