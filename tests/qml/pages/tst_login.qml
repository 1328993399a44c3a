// qmllint disable unqualified
import QtQuick
import "../../../qml/pages"

PageTest {
    id: test

    name: "LoginPage"
    width: 968
    height: 666
    page: page

    LoginPage {
        id: page

        anchors.fill: parent
    }

    // Clicks the submit button; its text can be the title too.
    function submit(form: var): void {
        mouseClick(form.submitButton);
    }

    function formWith(name: string): var {
        let item = visibleChild(name);
        while (item && item.submitButton === undefined)
            item = item.parent;
        return item;
    }

    function initTestCase(): void {
        rig.addAccount({ email: "ada@example.com", password: "Engine1843", firstName: "Ada", lastName: "Byron" });
    }

    function init(): void {
        page.currentPage = page.page_id_reset_password;
        page.currentPage = page.page_id_sign_in;
        const form = formWith("email");
        form.reset();
        rig.takeRequests();
    }

    function test_signInWithEnterAlone(): void {
        type("email", "ada@example.com");
        keyClick(Qt.Key_Return);
        verify(visibleChild("password").activeFocus);
        type("password", "wrong");
        keyClick(Qt.Key_Return);
        tryVerify(() => page.serverResponse !== "");
        verify(shown(page.serverResponse));
        verify(!deviceControl.login);

        type("password", "Engine1843");
        keyClick(Qt.Key_Return);
        compare(page.serverResponse, "");
        tryVerify(() => deviceControl.login);
        compare(deviceControl.firstName, "Ada");
        compare(visibleChild("email").text, "");
        verify(formWith("email").submitButton.activeFocus);
        deviceControl.setLogin(false);
    }

    function test_formIsSentOnceAndForgottenAfterLeaving(): void {
        type("email", "ada@example.com");
        type("password", "wrong");
        for (let i = 0; i < 3; ++i)
            page.signIn(); // without an event in between, as the reply comes fast
        verify(formWith("email").busy);
        tryVerify(() => page.serverResponse !== "");
        compare(rig.takeRequests().length, 1);
        verify(!formWith("email").busy);
        // The next user does not see the text.
        page.visible = false;
        page.visible = true;
        compare(page.serverResponse, "");

        submit(formWith("email"));
        click("Forgot Password?");
        compare(visibleChild("email").text, "");
        keyClick(Qt.Key_Escape);
        compare(page.currentPage, page.page_id_sign_in);
        network.loginFailed("of the form that was left");
        compare(page.serverResponse, "");
        network.registrationSuccess();
        compare(page.currentPage, page.page_id_sign_in);
    }

    function test_clearedAddressIsNotCalledPrivate(): void {
        click("Create an account");
        type("email", "a@gmail.com");
        keyClick(Qt.Key_Tab);
        type("email", "");
        submit(formWith("email"));
        verify(!shown("Please use a work email address to register."));
        type("confirmPassword", "x");
        keyClick(Qt.Key_Return);
        // The service's text takes the second line only while the field needs no line of its own.
        const form = formWith("email");
        form.serverResponse = "A text of the service that is much longer than a single line of this form can hold";
        const response = visibleText(form.serverResponse);
        compare(response.lineCount, 1);
        verify(response.y >= visibleChild("confirmPassword").mapToItem(form, 0, 38).y + 15);
        compare(form.submitButton.radius, 10);
    }

    // Replies to requests made before a sign-in must not be visible after the sign-out.
    function test_lateRepliesAreIgnored(): void {
        click("Create an account");
        type("password", "Secret1");
        network.loginFailed("late");
        compare(page.serverResponse, "");
        network.loginSuccess({ data: { user: { email: "ada@example.com" } } });
        verify(deviceControl.login);
        network.registrationSuccess();
        network.passwordResetSent();
        network.registrationFailed("late");
        network.passwordResetFailed("late");
        network.loginFailed("late");
        deviceControl.setLogin(false);
        compare(page.currentPage, page.page_id_sign_in);
        compare(page.serverResponse, "");
    }

    function test_shownPageTakesTheFocus(): void {
        type("email", "ada@example.com");
        page.visible = false;
        page.visible = true;
        verify(formWith("email").activeFocus);
    }

    function test_emptyPasswordSendsNothing(): void {
        type("email", "ada@example.com");
        submit(formWith("email"));
        const password = visibleChild("password");
        compare(password.background.border.color, password.errorBorderColor);
        compare(rig.takeRequests().length, 0);
    }

    function test_typedAddressIsKeptOnADetour(): void {
        type("email", "ada@example.com");
        click("Create an account");
        click("Sign In");
        compare(visibleChild("email").text, "ada@example.com");
    }

    function test_createAccount(): void {
        click("Create an account");
        verify(visibleChild("firstName").activeFocus);
        for (const [field, text] of [["firstName", "Grace"], ["lastName", "Hopper"], ["email", "grace@example.org"],
                                     ["password", "Cobol1959"], ["confirmPassword", "Cobol1960"]])
            type(field, text);
        keyClick(Qt.Key_Return);
        verify(shown("Password do not match"));
        compare(rig.takeRequests().length, 0);

        type("confirmPassword", "Cobol1959");
        type("email", "ada@example.com");
        submit(formWith("email"));
        tryVerify(() => page.serverResponse !== "");
        type("email", "grace@example.org");
        visibleChild("confirmPassword").forceActiveFocus();
        keyClick(Qt.Key_Return);
        tryCompare(page, "currentPage", page.page_id_verify_account);
        verify(shown("We’ve sent a verification link to grace@example.org\nPlease check the email to verify your account."));
        compare(rig.account("grace@example.org").lastName, "Hopper");
        keyClick(Qt.Key_Space);
        compare(page.currentPage, page.page_id_sign_in);
        click("Create an account");
        compare(visibleChild("firstName").text, "");
    }

    function test_refusedAddresses_data(): var {
        const work = "Please use a work email address to register.";
        const format = "The format is incorrect";
        return [
            { tag: "listed", email: "a@gmail.com", error: work },
            { tag: "capitals", email: "a@GMail.COM", error: work },
            { tag: "below a listed one", email: "a@mail.gmx.net", error: work },
            { tag: "ends alike", email: "a@notgmail.com", error: "" },
            { tag: "two ats", email: "a@b@gmail.com", error: "" },
            { tag: "no ending", email: "a@work", error: format },
        ];
    }

    function test_refusedAddresses(data): void {
        click("Create an account");
        type("email", data.email);
        keyClick(Qt.Key_Tab);
        compare(shown("Please use a work email address to register."), data.error.startsWith("Please"));
        compare(shown("The format is incorrect"), data.error.startsWith("The format"));
    }

    function test_resetPassword(): void {
        click("Forgot Password?");
        verify(visibleChild("email").activeFocus);
        keyClick(Qt.Key_Return);
        verify(shown("Email is required"));
        type("email", "ada@example.com");
        keyClick(Qt.Key_Return);
        tryCompare(page, "currentPage", page.page_id_reset_password_complete);
        verify(shown("We sent an email to ada@example.com\nPlease check the email to reset your password."));
        keyClick(Qt.Key_Return);
        compare(page.currentPage, page.page_id_sign_in);
    }
}
