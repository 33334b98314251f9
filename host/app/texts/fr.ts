<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>The link is too long, or not one line.</source>
        <translation>Le lien est trop long, ou n&apos;est pas d&apos;une seule ligne.</translation>
    </message>
    <message>
        <source>No running xbrhost waits for this link. Start the sign-in again.</source>
        <translation>Aucun xbrhost en marche n&apos;attend ce lien. Recommencez la connexion.</translation>
    </message>
    <message>
        <source>xbrhost help tells more.</source>
        <translation>xbrhost help en dit plus.</translation>
    </message>
    <message>
        <source>Nearest: %1.</source>
        <translation>Le plus proche : %1.</translation>
    </message>
    <message>
        <source>There is no command “%1”.</source>
        <translation>Il n&apos;y a pas de commande « %1 ».</translation>
    </message>
    <message>
        <source>“%1” is one word too many.</source>
        <translation>« %1 » est un mot de trop.</translation>
    </message>
    <message>
        <source>%1 needs a value behind it.</source>
        <translation>Il manque une valeur après %1.</translation>
    </message>
    <message>
        <source>There is no option “%1” for “%2”.</source>
        <translation>Il n&apos;y a pas d&apos;option « %1 » pour « %2 ».</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 ne prend pas de valeur.</translation>
    </message>
    <message>
        <source>%1 needs a whole number from 1 to %2.</source>
        <translation>%1 demande un nombre entier de 1 à %2.</translation>
    </message>
    <message>
        <source>%1 belongs to the song before it: put it behind a song.</source>
        <translation>%1 se rapporte au morceau qui précède : placez-le après un morceau.</translation>
    </message>
    <message>
        <source>%1 is there twice.</source>
        <translation>%1 est donné deux fois.</translation>
    </message>
    <message>
        <source>open-url needs a link.</source>
        <translation>open-url demande un lien.</translation>
    </message>
    <message>
        <source>--release tells all about the release: leave out songs and details.</source>
        <translation>--release dit tout de la sortie : omettez morceaux et détails.</translation>
    </message>
    <message>
        <source>publish needs a song, or a folder with songs.</source>
        <translation>publish demande un morceau, ou un dossier de morceaux.</translation>
    </message>
    <message>
        <source>--album-title and --album-artist need --album: a single bears the title and the artist of its song.</source>
        <translation>--album-title et --album-artist demandent --album : un single porte le titre et l&apos;artiste de son morceau.</translation>
    </message>
    <message>
        <source>%1 is empty; leave it out to keep what the file&apos;s tags say.</source>
        <translation>%1 est vide ; omettez-le pour garder ce que disent les étiquettes du fichier.</translation>
    </message>
    <message>
        <source>%1 is not UTF-8.</source>
        <translation>%1 n&apos;est pas en UTF-8.</translation>
    </message>
    <message>
        <source>%1 holds a line break or another control character.</source>
        <translation>%1 contient un saut de ligne ou un autre caractère de contrôle.</translation>
    </message>
    <message>
        <source>has no panel</source>
        <translation>n&apos;a pas de panneau</translation>
    </message>
    <message>
        <source>The browser&apos;s answer to a sign-in cannot be received: %1.</source>
        <translation>La réponse du navigateur à une connexion ne peut pas être reçue : %1.</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2.</source>
        <translation>« %1 » ne peut pas être lu : %2.</translation>
    </message>
    <message>
        <source>“%1” and the folders in it hold no songs.</source>
        <translation>« %1 » et ses dossiers ne contiennent pas de morceaux.</translation>
    </message>
    <message>
        <source>“%1” holds no songs; --recursive looks into the folders in it, too.</source>
        <translation>« %1 » ne contient pas de morceaux ; --recursive regarde aussi dans ses dossiers.</translation>
    </message>
    <message>
        <source>--title and --track-number belong to one song, and “%1” is a folder.</source>
        <translation>--title et --track-number se rapportent à un morceau, et « %1 » est un dossier.</translation>
    </message>
    <message>
        <source>No genre holds “%1”.</source>
        <translation>Aucun genre ne contient « %1 ».</translation>
    </message>
    <message>
        <source>No genre holds “%1”. Nearest: %2.</source>
        <translation>Aucun genre ne contient « %1 ». Le plus proche : %2.</translation>
    </message>
    <message>
        <source>takes no songs</source>
        <translation>n&apos;accepte pas de morceaux</translation>
    </message>
</context>
<context>
    <name>LineTexts</name>
    <message>
        <source>no bytes for %1</source>
        <translation>aucun octet depuis %1</translation>
    </message>
    <message>
        <source>waiting for the answer</source>
        <translation>attend la réponse</translation>
    </message>
    <message>
        <source>%1 left, all %2</source>
        <translation>reste %1, tout %2</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>reste %1</translation>
    </message>
</context>
<context>
    <name>Output</name>
    <message>
        <source>The browser came back without a permission. Allow the access there, or end with Ctrl-C.</source>
        <translation>Le navigateur est revenu sans permission. Autorisez l&apos;accès là-bas, ou terminez avec Ctrl-C.</translation>
    </message>
    <message>
        <source>Publish the other songs?</source>
        <translation>Publier les autres morceaux ?</translation>
    </message>
    <message>
        <source>published</source>
        <translation>publié</translation>
    </message>
    <message>
        <source>not published</source>
        <translation>non publié</translation>
    </message>
    <message>
        <source>refused, details are missing</source>
        <translation>refusé, des détails manquent</translation>
    </message>
    <message>
        <source>(not set)</source>
        <translation>(non indiqué)</translation>
    </message>
    <message>
        <source>%1, rendered from “%2”</source>
        <translation>%1, rendu à partir de « %2 »</translation>
    </message>
    <message>
        <source>Release %1 of %2 (incomplete)</source>
        <translation>Sortie %1 sur %2 (incomplète)</translation>
    </message>
    <message>
        <source>Release %1 of %2</source>
        <translation>Sortie %1 sur %2</translation>
    </message>
    <message>
        <source>  Title: %1</source>
        <translation>  Titre : %1</translation>
    </message>
    <message>
        <source>  Artist: %1</source>
        <translation>  Artiste : %1</translation>
    </message>
    <message>
        <source>  Genre: %1</source>
        <translation>  Genre : %1</translation>
    </message>
    <message>
        <source>Published %1 of %2 songs as singles.</source>
        <translation>%1 morceaux sur %2 publiés comme singles.</translation>
    </message>
    <message>
        <source>Published %1 of %2 songs as singles, as %3.</source>
        <translation>%1 morceaux sur %2 publiés comme singles, en tant que %3.</translation>
    </message>
    <message>
        <source>Perhaps published: %1: it was sent, the answer did not come. Look at your account page.</source>
        <translation>Peut-être publié : %1 : envoyé, la réponse n&apos;est pas venue. Regardez la page de votre compte.</translation>
    </message>
    <message>
        <source>Not published: %1: %2</source>
        <translation>Non publié : %1 : %2</translation>
    </message>
    <message>
        <source>Waiting for your permission in the browser. If no page opened, open this address:</source>
        <translation>En attente de votre permission dans le navigateur. Si aucune page ne s&apos;est ouverte, ouvrez cette adresse :</translation>
    </message>
    <message>
        <source>Hand it over with: %1</source>
        <translation>Remettez le lien de retour avec : %1</translation>
    </message>
    <message>
        <source>%1%2: sending %3</source>
        <translation>%1%2 : envoi de %3</translation>
    </message>
    <message>
        <source>%1%2: %3 %, %4 of %5, %6 left, all %7 left</source>
        <translation>%1%2 : %3 %, %4 sur %5, reste %6, en tout %7</translation>
    </message>
    <message>
        <source>Sent %1 in %2, %3/s.</source>
        <translation>%1 envoyés en %2, %3/s.</translation>
    </message>
    <message>
        <source>Link back (paste it here if the browser does not return by itself):</source>
        <translation>Lien de retour (collez-le ici si le navigateur ne revient pas de lui-même) :</translation>
    </message>
    <message>
        <source>Publish them again?</source>
        <translation>Les publier à nouveau ?</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>The browser came back without a permission. Allow the access there, or cancel here.</source>
        <translation>Le navigateur est revenu sans autorisation. Autorisez l’accès là-bas ou annulez ici.</translation>
    </message>
    <message>
        <source>Signed out.</source>
        <translation>Déconnecté.</translation>
    </message>
    <message>
        <source>Waiting for your permission in the browser.</source>
        <translation>En attente de votre autorisation dans le navigateur.</translation>
    </message>
    <message>
        <source>Signing in…</source>
        <translation>Connexion en cours…</translation>
    </message>
    <message>
        <source>it does not take the songs</source>
        <translation>n&apos;accepte pas les morceaux</translation>
    </message>
    <message>
        <source>it does not take all songs</source>
        <translation>n&apos;accepte pas tous les morceaux</translation>
    </message>
    <message>
        <source>it does not offer to upload the songs</source>
        <translation>ne propose pas d&apos;envoyer les morceaux</translation>
    </message>
    <message>
        <source>Nothing was sent.</source>
        <translation>Rien n&apos;a été envoyé.</translation>
    </message>
    <message>
        <source>The service refused “%1” (%2) and gave no reason.</source>
        <translation>Le service a refusé « %1 » (%2) sans donner de raison.</translation>
    </message>
    <message>
        <source>The service refused the album “%1” (%2) and gave no reason.</source>
        <translation>Le service a refusé l&apos;album « %1 » (%2) sans donner de raison.</translation>
    </message>
    <message>
        <source>The service refused “%1” (%2): %3</source>
        <translation>Le service a refusé « %1 » (%2) : %3</translation>
    </message>
    <message>
        <source>The service refused the album “%1” (%2): %3</source>
        <translation>Le service a refusé l&apos;album « %1 » (%2) : %3</translation>
    </message>
    <message>
        <source>The service refused “%1” because details are missing: %2.</source>
        <translation>Le service a refusé « %1 » car il manque des informations : %2.</translation>
    </message>
    <message>
        <source>The service refused the album “%1” because details are missing: %2.</source>
        <translation>Le service a refusé l&apos;album « %1 » car il manque des informations : %2.</translation>
    </message>
    <message>
        <source>The service refused “%1” because details are missing, but none is empty here: %2</source>
        <translation>Le service a refusé « %1 » car il manque des informations, mais aucune n&apos;est vide ici : %2</translation>
    </message>
    <message>
        <source>The service refused the album “%1” because details are missing, but none is empty here: %2</source>
        <translation>Le service a refusé l&apos;album « %1 » car il manque des informations, mais aucune n&apos;est vide ici : %2</translation>
    </message>
    <message>
        <source>The service does not accept the stored sign-in any more.</source>
        <translation>Le service n&apos;accepte plus la connexion enregistrée.</translation>
    </message>
    <message>
        <source>The service refused “%1” because it is too large (%2).</source>
        <translation>Le service a refusé « %1 » car il est trop volumineux (%2).</translation>
    </message>
    <message>
        <source>The service refused the album “%1” because it is too large (%2).</source>
        <translation>Le service a refusé l&apos;album « %1 » car il est trop volumineux (%2).</translation>
    </message>
    <message>
        <source>The service asks to wait a while before the next upload. “%1” was not taken.</source>
        <translation>Le service demande d&apos;attendre un moment avant le prochain envoi. « %1 » n&apos;a pas été accepté.</translation>
    </message>
    <message>
        <source>The service asks to wait a while before the next upload. The album “%1” was not taken.</source>
        <translation>Le service demande d&apos;attendre un moment avant le prochain envoi. L&apos;album « %1 » n&apos;a pas été accepté.</translation>
    </message>
    <message>
        <source>The service has a fault (%2). “%1” was not taken; nothing is wrong with the song.</source>
        <translation>Le service est en panne (%2). « %1 » n&apos;a pas été accepté ; le morceau n&apos;est pas en cause.</translation>
    </message>
    <message>
        <source>The service has a fault (%2). The album “%1” was not taken; nothing is wrong with it.</source>
        <translation>Le service est en panne (%2). L&apos;album « %1 » n&apos;a pas été accepté ; il n&apos;est pas en cause.</translation>
    </message>
    <message>
        <source>%1 could not prove its identity: %2.</source>
        <translation>%1 n&apos;a pas pu prouver son identité : %2.</translation>
    </message>
    <message>
        <source>The service at %1 cannot be reached: %2.</source>
        <translation>Le service à %1 est injoignable : %2.</translation>
    </message>
    <message>
        <source>Stopped after all of “%1” was sent, before the service answered. It may be published.</source>
        <translation>Arrêté après l&apos;envoi complet de « %1 », avant la réponse du service. Il est peut-être publié.</translation>
    </message>
    <message>
        <source>Stopped after all of the album “%1” was sent, before the service answered. It may be published.</source>
        <translation>Arrêté après l&apos;envoi complet de l&apos;album « %1 », avant la réponse du service. Il est peut-être publié.</translation>
    </message>
    <message>
        <source>The connection broke after all of “%1” was sent, before the service answered. It may be published.</source>
        <translation>La connexion a été coupée après l&apos;envoi complet de « %1 », avant la réponse du service. Il est peut-être publié.</translation>
    </message>
    <message>
        <source>The connection broke after all of the album “%1” was sent, before the service answered. It may be published.</source>
        <translation>La connexion a été coupée après l&apos;envoi complet de l&apos;album « %1 », avant la réponse du service. Il est peut-être publié.</translation>
    </message>
    <message>
        <source>“%1” was stopped at %2 of %3 and did not arrive.</source>
        <translation>« %1 » a été arrêté à %2 sur %3 et n&apos;est pas arrivé.</translation>
    </message>
    <message>
        <source>The album “%1” was stopped at %2 of %3 and did not arrive.</source>
        <translation>L&apos;album « %1 » a été arrêté à %2 sur %3 et n&apos;est pas arrivé.</translation>
    </message>
    <message>
        <source>The connection broke after %2 of %3. “%1” did not arrive.</source>
        <translation>La connexion a été coupée après %2 sur %3. « %1 » n&apos;est pas arrivé.</translation>
    </message>
    <message>
        <source>The connection broke after %2 of %3. The album “%1” did not arrive.</source>
        <translation>La connexion a été coupée après %2 sur %3. L&apos;album « %1 » n&apos;est pas arrivé.</translation>
    </message>
    <message>
        <source>“%2” is no longer there. “%1” was not sent.</source>
        <translation>« %2 » n&apos;est plus là. « %1 » n&apos;a pas été envoyé.</translation>
    </message>
    <message>
        <source>“%2” is no longer there. The album “%1” is not complete.</source>
        <translation>« %2 » n&apos;est plus là. L&apos;album « %1 » n&apos;est pas complet.</translation>
    </message>
    <message>
        <source>“%2” changed while it was copied. “%1” was not sent.</source>
        <translation>« %2 » a changé pendant la copie. « %1 » n&apos;a pas été envoyé.</translation>
    </message>
    <message>
        <source>“%2” changed while it was copied. The album “%1” is not complete.</source>
        <translation>« %2 » a changé pendant la copie. L&apos;album « %1 » n&apos;est pas complet.</translation>
    </message>
    <message>
        <source>There is not enough room in “%2”: %3 are needed, %4 are free. “%1” was not sent.</source>
        <translation>Il n&apos;y a pas assez de place dans « %2 » : il faut %3, %4 sont libres. « %1 » n&apos;a pas été envoyé.</translation>
    </message>
    <message>
        <source>There is not enough room in “%2”: %3 are needed, %4 are free. The album “%1” was not sent.</source>
        <translation>Il n&apos;y a pas assez de place dans « %2 » : il faut %3, %4 sont libres. L&apos;album « %1 » n&apos;a pas été envoyé.</translation>
    </message>
    <message>
        <source>The folder for copies, “%1”, cannot be written.</source>
        <translation>Impossible d&apos;écrire dans le dossier des copies, « %1 ».</translation>
    </message>
    <message>
        <source>“%1” could not be prepared: %2. It was not sent.</source>
        <translation>« %1 » n&apos;a pas pu être préparé : %2. Il n&apos;a pas été envoyé.</translation>
    </message>
    <message>
        <source>The album “%1” could not be prepared: %2. It was not sent.</source>
        <translation>L&apos;album « %1 » n&apos;a pas pu être préparé : %2. Il n&apos;a pas été envoyé.</translation>
    </message>
    <message>
        <source>“%1” was not sent.</source>
        <translation>« %1 » n&apos;a pas été envoyé.</translation>
    </message>
    <message>
        <source>The album “%1” was not sent.</source>
        <translation>L&apos;album « %1 » n&apos;a pas été envoyé.</translation>
    </message>
    <message>
        <source>“%1” could not be prepared. It was not sent.</source>
        <translation>« %1 » n&apos;a pas pu être préparé. Il n&apos;a pas été envoyé.</translation>
    </message>
    <message>
        <source>The album “%1” could not be prepared. It was not sent.</source>
        <translation>L&apos;album « %1 » n&apos;a pas pu être préparé. Il n&apos;a pas été envoyé.</translation>
    </message>
    <message>
        <source>Published the album “%1” with one song.</source>
        <translation>L&apos;album « %1 » avec un morceau a été publié.</translation>
    </message>
    <message>
        <source>Published the album “%1” with %2 songs.</source>
        <translation>L&apos;album « %1 » avec %2 morceaux a été publié.</translation>
    </message>
    <message>
        <source>Published “%1”.</source>
        <translation>« %1 » a été publié.</translation>
    </message>
    <message>
        <source>Published %1 songs as singles.</source>
        <translation>%1 morceaux ont été publiés comme singles.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Arrêté.</translation>
    </message>
    <message>
        <source>%1 of %2 songs are published.</source>
        <translation>%1 morceaux sur %2 sont publiés.</translation>
    </message>
    <message>
        <source>Signed in.</source>
        <translation>Connecté.</translation>
    </message>
    <message>
        <source>Signed in as %1.</source>
        <translation>Connecté en tant que %1.</translation>
    </message>
    <message>
        <source>Not signed in: the sign-in was given up.</source>
        <translation>Non connecté : la connexion a été abandonnée.</translation>
    </message>
    <message>
        <source>Not signed in: the service did not accept it.</source>
        <translation>Non connecté : le service ne l&apos;a pas accepté.</translation>
    </message>
    <message>
        <source>Not signed in: the service refused it: %1.</source>
        <translation>Non connecté : le service l&apos;a refusé : %1.</translation>
    </message>
    <message>
        <source>Nothing waits to be sent. Choose “Reset” in the menu of a song first.</source>
        <translation>Rien n&apos;attend d&apos;être envoyé. Choisissez d&apos;abord « Réinitialiser » dans le menu d&apos;un morceau.</translation>
    </message>
    <message>
        <source>Published %1 of %2 songs. %3</source>
        <translation>%1 morceaux sur %2 ont été publiés. %3</translation>
    </message>
    <message>
        <source>No module was found. Songs cannot be published.</source>
        <translation>Aucun module n&apos;a été trouvé. Les morceaux ne peuvent pas être publiés.</translation>
    </message>
    <message>
        <source>“%1” %2. Songs cannot be published.</source>
        <translation>« %1 » %2. Les morceaux ne peuvent pas être publiés.</translation>
    </message>
    <message>
        <source>album title</source>
        <translation>titre de l&apos;album</translation>
    </message>
    <message>
        <source>album artist</source>
        <translation>artiste de l&apos;album</translation>
    </message>
    <message>
        <source>genre</source>
        <translation>genre</translation>
    </message>
    <message>
        <source>song title</source>
        <translation>titre du morceau</translation>
    </message>
    <message>
        <source>song artist</source>
        <translation>artiste du morceau</translation>
    </message>
    <message>
        <source>“%1” lacks: %2.</source>
        <translation>Il manque à « %1 » : %2.</translation>
    </message>
    <message>
        <source>The album lacks: %1.</source>
        <translation>Il manque à l&apos;album : %1.</translation>
    </message>
    <message>
        <source>The album “%1” lacks: %2.</source>
        <translation>Il manque à l&apos;album « %1 » : %2.</translation>
    </message>
    <message>
        <source>The service does not know the genre “%1”.</source>
        <translation>Le service ne connaît pas le genre « %1 ».</translation>
    </message>
    <message>
        <source>The service does not know the genre “%1”. Nearest: %2.</source>
        <translation>Le service ne connaît pas le genre « %1 ». Le plus proche : %2.</translation>
    </message>
    <message>
        <source>“%1” has the genre “%2”, which the service does not know.</source>
        <translation>« %1 » a le genre « %2 », que le service ne connaît pas.</translation>
    </message>
    <message>
        <source>“%1” has the genre “%2”, which the service does not know. Nearest: %3.</source>
        <translation>« %1 » a le genre « %2 », que le service ne connaît pas. Le plus proche : %3.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is not there.</source>
        <translation>« %1 » ne peut pas être publié : il n&apos;est pas là.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it cannot be read.</source>
        <translation>« %1 » ne peut pas être publié : il est illisible.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it cannot be read (%2).</source>
        <translation>« %1 » ne peut pas être publié : il est illisible (%2).</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is not a file.</source>
        <translation>« %1 » ne peut pas être publié : ce n&apos;est pas un fichier.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is %2, not %3 as its name says.</source>
        <translation>« %1 » ne peut pas être publié : c&apos;est du %2, et non du %3 comme le dit son nom.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is cut off.</source>
        <translation>« %1 » ne peut pas être publié : il est tronqué.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is cut off: %2 of %3.</source>
        <translation>« %1 » ne peut pas être publié : il est tronqué : %2 sur %3.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: its sample rate of %2 cannot be right.</source>
        <translation>« %1 » ne peut pas être publié : sa fréquence d&apos;échantillonnage de %2 ne peut pas être juste.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it holds samples that are not numbers.</source>
        <translation>« %1 » ne peut pas être publié : il contient des échantillons qui ne sont pas des nombres.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: its name is not UTF-8.</source>
        <translation>« %1 » ne peut pas être publié : son nom n&apos;est pas en UTF-8.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: its name holds control characters.</source>
        <translation>« %1 » ne peut pas être publié : son nom contient des caractères de contrôle.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it would have to become %2, which is not possible.</source>
        <translation>« %1 » ne peut pas être publié : il devrait devenir %2, ce qui n&apos;est pas possible.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it holds no audio that can be read.</source>
        <translation>« %1 » ne peut pas être publié : il ne contient aucun son lisible.</translation>
    </message>
    <message>
        <source>The settings of %1 cannot be read from “%2”.</source>
        <translation>Les réglages de %1 ne peuvent pas être lus dans « %2 ».</translation>
    </message>
    <message>
        <source>%1 is not set up: %2 is wrong in “%3”, section [%4].</source>
        <translation>%1 n&apos;est pas configuré : %2 est incorrect dans « %3 », section [%4].</translation>
    </message>
    <message>
        <source>%1 is not set up: %2 is missing in “%3”, section [%4].</source>
        <translation>%1 n&apos;est pas configuré : il manque %2 dans « %3 », section [%4].</translation>
    </message>
    <message>
        <source>“%1” is there twice.</source>
        <translation>« %1 » est là deux fois.</translation>
    </message>
    <message>
        <source>“%1” and “%2” have the same file name; in an album each song needs its own.</source>
        <translation>« %1 » et « %2 » ont le même nom de fichier ; dans un album, chaque morceau doit avoir le sien.</translation>
    </message>
    <message>
        <source>“%1” and “%2” both have the number %3.</source>
        <translation>« %1 » et « %2 » ont tous deux le numéro %3.</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>encore %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>“%1” is sent. Waiting for the service&apos;s answer.</source>
        <translation>« %1 » est envoyé. En attente de la réponse du service.</translation>
    </message>
    <message>
        <source>Sending “%1”: no bytes have left for %2 s. Waiting for the connection.</source>
        <translation>Envoi de « %1 » : plus aucun octet n&apos;est parti depuis %2 s. En attente de la connexion.</translation>
    </message>
    <message>
        <source>Sending the album “%1”</source>
        <translation>Envoi de l&apos;album « %1 »</translation>
    </message>
    <message>
        <source>Sending “%1”, %2 of %3</source>
        <translation>Envoi de « %1 », %2 sur %3</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>All: %1</source>
        <translation>Tout : %1</translation>
    </message>
    <message>
        <source>Preparing one song: %1 of %2. Nothing is sent yet.</source>
        <translation>Préparation d&apos;un morceau : %1 sur %2. Rien n&apos;est encore envoyé.</translation>
    </message>
    <message>
        <source>Preparing %1 songs: %2 of %3. Nothing is sent yet.</source>
        <translation>Préparation de %1 morceaux : %2 sur %3. Rien n&apos;est encore envoyé.</translation>
    </message>
    <message>
        <source>An upload is running.</source>
        <translation>Un envoi est en cours.</translation>
    </message>
    <message>
        <source>Hand over songs first.</source>
        <translation>Transmettez d&apos;abord des morceaux.</translation>
    </message>
    <message>
        <source>Sign in first.</source>
        <translation>Connectez-vous d&apos;abord.</translation>
    </message>
    <message>
        <source>All songs are published.</source>
        <translation>Tous les morceaux sont publiés.</translation>
    </message>
    <message>
        <source>Run the same command again.</source>
        <translation>Relancez la même commande.</translation>
    </message>
    <message>
        <source>Run the same command with the songs that are not published to send the rest.</source>
        <translation>Relancez la même commande avec les morceaux non publiés pour envoyer le reste.</translation>
    </message>
    <message>
        <source>Try again later.</source>
        <translation>Réessayez plus tard.</translation>
    </message>
    <message>
        <source>Choose one with --genre.</source>
        <translation>Choisissez-en un avec --genre.</translation>
    </message>
    <message>
        <source>Name it once.</source>
        <translation>Ne le nommez qu&apos;une fois.</translation>
    </message>
    <message>
        <source>Rename one of them.</source>
        <translation>Renommez l&apos;un des deux.</translation>
    </message>
    <message>
        <source>--skip-unreadable leaves it out.</source>
        <translation>--skip-unreadable l&apos;omet.</translation>
    </message>
    <message>
        <source>Put it back, then run the same command again.</source>
        <translation>Remettez-le en place, puis relancez la même commande.</translation>
    </message>
    <message>
        <source>Make room, or set TMPDIR to another folder.</source>
        <translation>Faites de la place, ou indiquez un autre dossier dans TMPDIR.</translation>
    </message>
    <message>
        <source>Set TMPDIR to another folder.</source>
        <translation>Indiquez un autre dossier dans TMPDIR.</translation>
    </message>
    <message>
        <source>--track-number sets it.</source>
        <translation>--track-number le fixe.</translation>
    </message>
    <message>
        <source>Look at your account page before you send it again.</source>
        <translation>Regardez la page de votre compte avant de l&apos;envoyer à nouveau.</translation>
    </message>
    <message>
        <source>Check ServerURL and this computer&apos;s clock.</source>
        <translation>Vérifiez ServerURL et l&apos;horloge de cet ordinateur.</translation>
    </message>
    <message>
        <source>xbrhost sign-in renews it.</source>
        <translation>xbrhost sign-in la renouvelle.</translation>
    </message>
    <message>
        <source>xbrhost sign-in signs in.</source>
        <translation>xbrhost sign-in connecte.</translation>
    </message>
    <message>
        <source>--module names one.</source>
        <translation>--module en nomme un.</translation>
    </message>
    <message>
        <source>Add it with %1.</source>
        <translation>Ajoutez-le avec %1.</translation>
    </message>
    <message>
        <source>Add them with %1.</source>
        <translation>Ajoutez-les avec %1.</translation>
    </message>
    <message>
        <source>The service asks to wait %2 before the next upload. “%1” was not taken.</source>
        <translation>Le service demande d&apos;attendre %2 avant le prochain envoi. « %1 » n&apos;a pas été pris.</translation>
    </message>
    <message>
        <source>The service asks to wait %2 before the next upload. The album “%1” was not taken.</source>
        <translation>Le service demande d&apos;attendre %2 avant le prochain envoi. L&apos;album « %1 » n&apos;a pas été pris.</translation>
    </message>
    <message>
        <source>Waiting for the keyring to be unlocked.</source>
        <translation>En attente du déverrouillage du trousseau.</translation>
    </message>
    <message>
        <source>Waiting for the keyring to answer.</source>
        <translation>En attente d&apos;une réponse du trousseau.</translation>
    </message>
    <message>
        <source>The web browser could not be started: %1. Copy the address and open it in a browser.</source>
        <translation>Le navigateur web n&apos;a pas pu être démarré : %1. Copiez l&apos;adresse et ouvrez-la dans un navigateur.</translation>
    </message>
    <message>
        <source>The web browser could not be started: %1.</source>
        <translation>Le navigateur web n&apos;a pas pu être démarré : %1.</translation>
    </message>
    <message>
        <source>Signed in as %1, until the program ends: this computer has no keyring.</source>
        <translation>Connecté en tant que %1, jusqu&apos;à la fin du programme : cet ordinateur n&apos;a pas de trousseau.</translation>
    </message>
    <message>
        <source>Not signed in: this computer has no keyring.</source>
        <translation>Non connecté : cet ordinateur n&apos;a pas de trousseau.</translation>
    </message>
    <message>
        <source>No keyring can be reached from here: nothing was removed.</source>
        <translation>Aucun trousseau n&apos;est accessible d&apos;ici : rien n&apos;a été supprimé.</translation>
    </message>
    <message>
        <source>Signed in as %1, until the program ends: the keyring was not unlocked.</source>
        <translation>Connecté en tant que %1, jusqu&apos;à la fin du programme : le trousseau n&apos;a pas été déverrouillé.</translation>
    </message>
    <message>
        <source>The keyring was not unlocked: the stored sign-in cannot be read.</source>
        <translation>Le trousseau n&apos;a pas été déverrouillé : la connexion enregistrée ne peut pas être lue.</translation>
    </message>
    <message>
        <source>The keyring was not unlocked: the stored sign-in may still be there.</source>
        <translation>Le trousseau n&apos;a pas été déverrouillé : la connexion enregistrée est peut-être encore là.</translation>
    </message>
    <message>
        <source>Signed in as %1, until the program ends: the keyring does not answer.</source>
        <translation>Connecté en tant que %1, jusqu&apos;à la fin du programme : le trousseau ne répond pas.</translation>
    </message>
    <message>
        <source>The keyring does not answer: the stored sign-in cannot be read.</source>
        <translation>Le trousseau ne répond pas : la connexion enregistrée ne peut pas être lue.</translation>
    </message>
    <message>
        <source>The keyring does not answer: the stored sign-in may still be there.</source>
        <translation>Le trousseau ne répond pas : la connexion enregistrée est peut-être encore là.</translation>
    </message>
    <message>
        <source>The service does not say who is signed in; it may not be %1.</source>
        <translation>Le service ne dit pas qui est connecté ; ce n&apos;est peut-être pas %1.</translation>
    </message>
    <message>
        <source>Signed in as %1, not as %2.</source>
        <translation>Connecté en tant que %1, et non %2.</translation>
    </message>
    <message>
        <source>A sign-in is stored, but the service could not be asked: %1.</source>
        <translation>Une connexion est enregistrée, mais le service n&apos;a pas pu être interrogé : %1.</translation>
    </message>
    <message>
        <source>Not signed in: the service sent an answer that cannot be used.</source>
        <translation>Non connecté : le service a envoyé une réponse inutilisable.</translation>
    </message>
    <message>
        <source>Not signed in.</source>
        <translation>Non connecté.</translation>
    </message>
    <message>
        <source>This is not a link back: it begins with “%1:”.</source>
        <translation>Ce n&apos;est pas un lien de retour : il commence par « %1: ».</translation>
    </message>
    <message>
        <source>This link back belongs to another sign-in. Open the address again.</source>
        <translation>Ce lien de retour appartient à une autre connexion. Ouvrez l&apos;adresse à nouveau.</translation>
    </message>
    <message>
        <source>Nobody was signed in.</source>
        <translation>Personne n&apos;était connecté.</translation>
    </message>
    <message>
        <source>cannot sign out</source>
        <translation>ne peut pas se déconnecter</translation>
    </message>
    <message>
        <source>Unlock it, then run the same command again.</source>
        <translation>Déverrouillez-le, puis relancez la même commande.</translation>
    </message>
    <message>
        <source>xbrhost sign-out signs out.</source>
        <translation>xbrhost sign-out déconnecte.</translation>
    </message>
    <message>
        <source>it answered %1</source>
        <translation>il a répondu %1</translation>
    </message>
    <message>
        <source>%1 is not set up: %2 is not encrypted, and only this computer may be reached that way.</source>
        <translation>%1 n&apos;est pas configuré : %2 n&apos;est pas chiffré, et seul cet ordinateur peut être joint ainsi.</translation>
    </message>
    <message>
        <source>--again sends them again.</source>
        <translation>--again les envoie à nouveau.</translation>
    </message>
    <message>
        <source>%1 of %2 songs were published from this computer before.</source>
        <translation>%1 chansons sur %2 ont déjà été publiées depuis cet ordinateur.</translation>
    </message>
    <message>
        <source>“%1” was published from this computer on %2.</source>
        <translation>« %1 » a été publié depuis cet ordinateur le %2.</translation>
    </message>
</context>
<context>
    <name>xbr::host::AboutDialog</name>
    <message>
        <source>About xbrhost</source>
        <translation>À propos de xbrhost</translation>
    </message>
    <message>
        <source>Publishes finished songs through the modules of a workstation.</source>
        <translation>Publie des morceaux finis grâce aux modules d’une station audio.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>Co&amp;pier</translation>
    </message>
    <message>
        <source>Copy the versions</source>
        <translation>Copier les versions</translation>
    </message>
</context>
<context>
    <name>xbr::host::DesktopNotification</name>
    <message>
        <source>Show</source>
        <translation>Montrer</translation>
    </message>
</context>
<context>
    <name>xbr::host::DockTitle</name>
    <message>
        <source>Float or dock</source>
        <translation>Détacher ou ancrer</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
</context>
<context>
    <name>xbr::host::EmptyState</name>
    <message>
        <source>&amp;Add Songs…</source>
        <translation>&amp;Ajouter des morceaux…</translation>
    </message>
    <message>
        <source>Drop your finished songs here</source>
        <translation>Déposez ici vos morceaux finis</translation>
    </message>
    <message>
        <source>WAV, AIFF, FLAC, MP3 or Ogg, one by one or a whole folder</source>
        <translation>WAV, AIFF, FLAC, MP3 ou Ogg, un par un ou tout un dossier</translation>
    </message>
</context>
<context>
    <name>xbr::host::FileSelector</name>
    <message>
        <source>All usable files</source>
        <translation>Tous les fichiers utilisables</translation>
    </message>
    <message>
        <source>Choose Files</source>
        <translation>Choisir des fichiers</translation>
    </message>
</context>
<context>
    <name>xbr::host::GadgetDock</name>
    <message>
        <source>The form of this panel cannot be shown.</source>
        <translation>Le formulaire de ce panneau ne peut pas être affiché.</translation>
    </message>
</context>
<context>
    <name>xbr::host::HandOver</name>
    <message numerus="yes">
        <source>It holds edits of %n song(s) that have not been sent.</source>
        <translation>
            <numerusform>Il contient des modifications de %n morceau qui n&apos;ont pas été envoyées.</numerusform>
            <numerusform>Il contient des modifications de %n morceaux qui n&apos;ont pas été envoyées.</numerusform>
        </translation>
    </message>
    <message>
        <source>It holds the results of the last upload.</source>
        <translation>Il contient les résultats du dernier envoi.</translation>
    </message>
    <message>
        <source>Replace the songs in the panel?</source>
        <translation>Remplacer les morceaux du panneau ?</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Garder</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>The other songs can be handed over without them.</source>
        <translation>Les autres morceaux peuvent être transmis sans eux.</translation>
    </message>
    <message>
        <source>Leave out songs?</source>
        <translation>Laisser des morceaux de côté ?</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Leave out</source>
        <translation>&amp;Laisser de côté</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) handed over to the panel; nothing is sent yet. Check the details there, then upload.</source>
        <translation>
            <numerusform>%n morceau transmis au panneau ; rien n&apos;est encore envoyé. Vérifiez-y les détails, puis envoyez.</numerusform>
            <numerusform>%n morceaux transmis au panneau ; rien n&apos;est encore envoyé. Vérifiez-y les détails, puis envoyez.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Montrer</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) lack details that the service needs. “%2”: %3.</source>
        <translation>
            <numerusform>Il manque à %1 morceau sur %n des détails dont le service a besoin. « %2 » : %3.</numerusform>
            <numerusform>Il manque à %1 morceaux sur %n des détails dont le service a besoin. « %2 » : %3.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::Header</name>
    <message>
        <source>Songs</source>
        <translation>Morceaux</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Aucun pour l’instant</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s)</source>
        <translation>
            <numerusform>%n morceau</numerusform>
            <numerusform>%n morceaux</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::KeyringSheet</name>
    <message>
        <source>Keyring</source>
        <translation>Trousseau</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>xbr::host::MainWindow</name>
    <message>
        <source>Songs – xbrhost</source>
        <translation>Morceaux – xbrhost</translation>
    </message>
    <message>
        <source>Add Songs</source>
        <translation>Ajouter des morceaux</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Some songs are still being read; try again in a moment.</source>
        <translation>Certains morceaux sont encore en cours de lecture ; réessayez dans un instant.</translation>
    </message>
    <message>
        <source>Add songs first.</source>
        <translation>Ajoutez d’abord des morceaux.</translation>
    </message>
    <message>
        <source>Wait until the upload that runs has ended.</source>
        <translation>Attendez la fin de l’envoi en cours.</translation>
    </message>
    <message>
        <source>&amp;Stop and Quit</source>
        <translation>&amp;Arrêter et quitter</translation>
    </message>
    <message>
        <source>&amp;Keep Uploading</source>
        <translation>&amp;Continuer l’envoi</translation>
    </message>
    <message>
        <source>Hands the selected songs, or all, over to the panel; nothing is sent yet</source>
        <translation>Transmet les morceaux sélectionnés, ou tous, au panneau ; rien n&apos;est encore envoyé</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) in the panel have edits that were not sent; they would be lost. The list comes back at the next start.</source>
        <translation>
            <numerusform>%n morceau du panneau a des modifications non envoyées ; elles seraient perdues. La liste revient au prochain démarrage.</numerusform>
            <numerusform>%n morceaux du panneau ont des modifications non envoyées ; elles seraient perdues. La liste revient au prochain démarrage.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop the upload?</source>
        <translation>Arrêter l&apos;envoi ?</translation>
    </message>
    <message>
        <source>Quit without publishing?</source>
        <translation>Quitter sans publier ?</translation>
    </message>
    <message>
        <source>&amp;Keep Editing</source>
        <translation>&amp;Continuer à modifier</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
</context>
<context>
    <name>xbr::host::PanelMemory</name>
    <message>
        <source>Track number</source>
        <translation>Numéro de piste</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) removed from the panel.</source>
        <translation>
            <numerusform>%n morceau retiré du panneau.</numerusform>
            <numerusform>%n morceaux retirés du panneau.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 changed in %n song(s).</source>
        <translation>
            <numerusform>%1 modifié dans %n morceau.</numerusform>
            <numerusform>%1 modifié dans %n morceaux.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::PanelNotices</name>
    <message numerus="yes">
        <source>%1 of %n song(s) are published; the rest would not be.</source>
        <translation>
            <numerusform>%1 morceau sur %n est publié ; le reste ne le serait pas.</numerusform>
            <numerusform>%1 morceaux sur %n sont publiés ; le reste ne le serait pas.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is being sent.</source>
        <translation>« %1 » est en cours d&apos;envoi.</translation>
    </message>
    <message>
        <source>Published %1</source>
        <translation>Publié le %1</translation>
    </message>
    <message>
        <source>Published %1 as %2</source>
        <translation>Publié le %1 en tant que %2</translation>
    </message>
    <message>
        <source>Send without these details?</source>
        <translation>Envoyer sans ces détails ?</translation>
    </message>
    <message>
        <source>“%1”: %2. The service will probably refuse it. Nothing is sent yet.</source>
        <translation>« %1 » : %2. Le service le refusera probablement. Rien n&apos;est encore envoyé.</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Montrer</translation>
    </message>
    <message>
        <source>Send &amp;Anyway</source>
        <translation>Envoyer &amp;quand même</translation>
    </message>
    <message>
        <source>Publish again?</source>
        <translation>Publier à nouveau ?</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Publish &amp;Again</source>
        <translation>Publier à &amp;nouveau</translation>
    </message>
    <message>
        <source>&amp;Leave them out</source>
        <translation>&amp;Les laisser de côté</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) were published from this computer before.</source>
        <translation>
            <numerusform>%1 morceau sur %n a déjà été publié depuis cet ordinateur.</numerusform>
            <numerusform>%1 morceaux sur %n ont déjà été publiés depuis cet ordinateur.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>A&amp;ccount page</source>
        <translation>Page du &amp;compte</translation>
    </message>
    <message>
        <source>&amp;Leave out</source>
        <translation>&amp;Laisser de côté</translation>
    </message>
    <message>
        <source>Sign &amp;in</source>
        <translation>&amp;Se connecter</translation>
    </message>
</context>
<context>
    <name>xbr::host::ProgressRow</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>End the upload; what has arrived stays published</source>
        <translation>Mettre fin à l&apos;envoi ; ce qui est arrivé reste publié</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
</context>
<context>
    <name>xbr::host::ProgressSheet</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Working on</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Arrêt en cours…</translation>
    </message>
</context>
<context>
    <name>xbr::host::Selection</name>
    <message>
        <source>“%1” is on its way and cannot be changed now.</source>
        <translation>« %1 » est en route et ne peut pas être modifié maintenant.</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) selected: an edit changes all of them.</source>
        <translation>
            <numerusform>%n morceau sélectionné : une modification les change tous.</numerusform>
            <numerusform>%n morceaux sélectionnés : une modification les change tous.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>≠ %n value(s)</source>
        <translation>
            <numerusform>≠ %n valeur</numerusform>
            <numerusform>≠ %n valeurs</numerusform>
        </translation>
    </message>
    <message>
        <source>same</source>
        <translation>identique</translation>
    </message>
    <message numerus="yes">
        <source>%n different value(s): %1</source>
        <translation>
            <numerusform>%n valeur différente : %1</numerusform>
            <numerusform>%n valeurs différentes : %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::SignInStrip</name>
    <message>
        <source>Copy the address</source>
        <translation>Copier l&apos;adresse</translation>
    </message>
    <message>
        <source>Link back</source>
        <translation>Lien de retour</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Nothing happened?</source>
        <translation>Rien ne s&apos;est passé ?</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
</context>
<context>
    <name>xbr::host::Song</name>
    <message>
        <source>%1 bit</source>
        <translation>%1 bits</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Fichiers audio</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongCommands</name>
    <message numerus="yes">
        <source>%n song(s) added.</source>
        <translation>
            <numerusform>%n morceau ajouté.</numerusform>
            <numerusform>%n morceaux ajoutés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) added; %1 were in the list already.</source>
        <translation>
            <numerusform>%n morceau ajouté ; %1 déjà dans la liste.</numerusform>
            <numerusform>%n morceaux ajoutés ; %1 déjà dans la liste.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) removed from the list; the files stay.</source>
        <translation>
            <numerusform>%n morceau retiré de la liste ; le fichier reste.</numerusform>
            <numerusform>%n morceaux retirés de la liste ; les fichiers restent.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Montrer</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) need a look before they can be published. %2</source>
        <translation>
            <numerusform>%1 morceau sur %n demande un coup d&apos;œil avant d&apos;être publié. %2</numerusform>
            <numerusform>%1 morceaux sur %n demandent un coup d&apos;œil avant d&apos;être publiés. %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) from last time.</source>
        <translation>
            <numerusform>%n morceau de la dernière fois.</numerusform>
            <numerusform>%n morceaux de la dernière fois.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) from last time; %1 no longer there.</source>
        <translation>
            <numerusform>%n morceau de la dernière fois ; %1 introuvable.</numerusform>
            <numerusform>%n morceaux de la dernière fois ; %1 introuvable.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n fichier</numerusform>
            <numerusform>%n fichiers</numerusform>
        </translation>
    </message>
    <message>
        <source>Start &amp;Empty</source>
        <translation>Commencer à &amp;vide</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongListModel</name>
    <message>
        <source>Reading…</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artiste</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>Artiste de l’album</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>Numéro de piste</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marque</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongView</name>
    <message>
        <source>Songs</source>
        <translation>Morceaux</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
</context>
<context>
    <name>xbr::host::StatusLine</name>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Fermer le message</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>Prêt.</translation>
    </message>
    <message>
        <source>Show each song</source>
        <translation>Montrer chaque morceau</translation>
    </message>
</context>
<context>
    <name>xbr::host::WindowActions</name>
    <message>
        <source>Menus</source>
        <translation>Menus</translation>
    </message>
    <message>
        <source>&amp;Publish</source>
        <translation>&amp;Publier</translation>
    </message>
    <message>
        <source>&amp;About xbrhost</source>
        <translation>À &amp;propos de xbrhost</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Add Songs…</source>
        <translation>&amp;Ajouter des morceaux…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add songs (%1)</source>
        <translation>Ajouter des morceaux (%1)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit Cell</source>
        <translation>&amp;Modifier la cellule</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove the selected songs from the list; the files stay</source>
        <translation>Retirer les morceaux choisis de la liste ; les fichiers restent</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Next Area</source>
        <translation>Zone &amp;suivante</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Apparence</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>&amp;Réinitialiser la disposition</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Comme le &amp;bureau</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>Da&amp;rk</source>
        <translation>&amp;Sombre</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Red&amp;o</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Next Problem</source>
        <translation>Problème &amp;suivant</translation>
    </message>
    <message>
        <source>&amp;Previous Problem</source>
        <translation>Problème &amp;précédent</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Arrêter</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Réessayer</translation>
    </message>
</context>
<context>
    <name>xbr::host::WindowFront</name>
    <message>
        <source>%1, border %2.%3</source>
        <translation>%1, interface %2.%3</translation>
    </message>
    <message>
        <source>The browser&apos;s answer to a sign-in cannot be received: %1.</source>
        <translation>La réponse du navigateur à une connexion ne peut pas être reçue : %1.</translation>
    </message>
</context>
</TS>
