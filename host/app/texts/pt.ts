<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>The link is too long, or not one line.</source>
        <translation>O link é longo demais ou não é uma só linha.</translation>
    </message>
    <message>
        <source>No running xbrhost waits for this link. Start the sign-in again.</source>
        <translation>Nenhum xbrhost em execução espera por este link. Inicie a sessão de novo.</translation>
    </message>
    <message>
        <source>xbrhost help tells more.</source>
        <translation>xbrhost help diz mais.</translation>
    </message>
    <message>
        <source>Nearest: %1.</source>
        <translation>Mais próximo: %1.</translation>
    </message>
    <message>
        <source>There is no command “%1”.</source>
        <translation>Não há comando “%1”.</translation>
    </message>
    <message>
        <source>“%1” is one word too many.</source>
        <translation>“%1” é uma palavra a mais.</translation>
    </message>
    <message>
        <source>%1 needs a value behind it.</source>
        <translation>Falta um valor depois de %1.</translation>
    </message>
    <message>
        <source>There is no option “%1” for “%2”.</source>
        <translation>Não há opção “%1” para “%2”.</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 não leva valor.</translation>
    </message>
    <message>
        <source>%1 needs a whole number from 1 to %2.</source>
        <translation>%1 precisa de um número inteiro de 1 a %2.</translation>
    </message>
    <message>
        <source>%1 belongs to the song before it: put it behind a song.</source>
        <translation>%1 pertence à música anterior: coloque depois de uma música.</translation>
    </message>
    <message>
        <source>%1 is there twice.</source>
        <translation>%1 aparece duas vezes.</translation>
    </message>
    <message>
        <source>open-url needs a link.</source>
        <translation>open-url precisa de um link.</translation>
    </message>
    <message>
        <source>--release tells all about the release: leave out songs and details.</source>
        <translation>--release diz tudo sobre o lançamento: omita músicas e dados.</translation>
    </message>
    <message>
        <source>publish needs a song, or a folder with songs.</source>
        <translation>publish precisa de uma música ou de uma pasta com músicas.</translation>
    </message>
    <message>
        <source>--album-title and --album-artist need --album: a single bears the title and the artist of its song.</source>
        <translation>--album-title e --album-artist precisam de --album: um single leva o título e o artista da sua música.</translation>
    </message>
    <message>
        <source>%1 is empty; leave it out to keep what the file&apos;s tags say.</source>
        <translation>%1 está vazio; omita para manter o que dizem as etiquetas do arquivo.</translation>
    </message>
    <message>
        <source>%1 is not UTF-8.</source>
        <translation>%1 não é UTF-8.</translation>
    </message>
    <message>
        <source>%1 holds a line break or another control character.</source>
        <translation>%1 contém uma quebra de linha ou outro caractere de controle.</translation>
    </message>
    <message>
        <source>has no panel</source>
        <translation>não tem painel</translation>
    </message>
    <message>
        <source>The browser&apos;s answer to a sign-in cannot be received: %1.</source>
        <translation>Não é possível receber a resposta do navegador ao iniciar a sessão: %1.</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2.</source>
        <translation>“%1” não pode ser lida: %2.</translation>
    </message>
    <message>
        <source>“%1” and the folders in it hold no songs.</source>
        <translation>“%1” e as pastas nela não contêm músicas.</translation>
    </message>
    <message>
        <source>“%1” holds no songs; --recursive looks into the folders in it, too.</source>
        <translation>“%1” não contém músicas; --recursive procura também nas pastas nela.</translation>
    </message>
    <message>
        <source>--title and --track-number belong to one song, and “%1” is a folder.</source>
        <translation>--title e --track-number pertencem a uma música, e “%1” é uma pasta.</translation>
    </message>
    <message>
        <source>No genre holds “%1”.</source>
        <translation>Nenhum gênero contém “%1”.</translation>
    </message>
    <message>
        <source>No genre holds “%1”. Nearest: %2.</source>
        <translation>Nenhum gênero contém “%1”. Mais próximo: %2.</translation>
    </message>
    <message>
        <source>takes no songs</source>
        <translation>não aceita músicas</translation>
    </message>
</context>
<context>
    <name>LineTexts</name>
    <message>
        <source>no bytes for %1</source>
        <translation>sem bytes há %1</translation>
    </message>
    <message>
        <source>waiting for the answer</source>
        <translation>esperando a resposta</translation>
    </message>
    <message>
        <source>%1 left, all %2</source>
        <translation>faltam %1, todas %2</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>faltam %1</translation>
    </message>
</context>
<context>
    <name>Output</name>
    <message>
        <source>The browser came back without a permission. Allow the access there, or end with Ctrl-C.</source>
        <translation>O navegador voltou sem permissão. Permita o acesso lá ou termine com Ctrl-C.</translation>
    </message>
    <message>
        <source>Publish the other songs?</source>
        <translation>Publicar as outras músicas?</translation>
    </message>
    <message>
        <source>published</source>
        <translation>publicada</translation>
    </message>
    <message>
        <source>not published</source>
        <translation>não publicada</translation>
    </message>
    <message>
        <source>refused, details are missing</source>
        <translation>recusada, faltam dados</translation>
    </message>
    <message>
        <source>(not set)</source>
        <translation>(não indicado)</translation>
    </message>
    <message>
        <source>%1, rendered from “%2”</source>
        <translation>%1, renderizado de “%2”</translation>
    </message>
    <message>
        <source>Release %1 of %2 (incomplete)</source>
        <translation>Lançamento %1 de %2 (incompleto)</translation>
    </message>
    <message>
        <source>Release %1 of %2</source>
        <translation>Lançamento %1 de %2</translation>
    </message>
    <message>
        <source>  Title: %1</source>
        <translation>  Título: %1</translation>
    </message>
    <message>
        <source>  Artist: %1</source>
        <translation>  Artista: %1</translation>
    </message>
    <message>
        <source>  Genre: %1</source>
        <translation>  Gênero: %1</translation>
    </message>
    <message>
        <source>Published %1 of %2 songs as singles.</source>
        <translation>Publicadas %1 de %2 músicas como singles.</translation>
    </message>
    <message>
        <source>Published %1 of %2 songs as singles, as %3.</source>
        <translation>Publicadas %1 de %2 músicas como singles, como %3.</translation>
    </message>
    <message>
        <source>Perhaps published: %1: it was sent, the answer did not come. Look at your account page.</source>
        <translation>Talvez publicada: %1: foi enviada, a resposta não veio. Veja a página da sua conta.</translation>
    </message>
    <message>
        <source>Not published: %1: %2</source>
        <translation>Não publicada: %1: %2</translation>
    </message>
    <message>
        <source>Waiting for your permission in the browser. If no page opened, open this address:</source>
        <translation>Esperando a sua permissão no navegador. Se nenhuma página abriu, abra este endereço:</translation>
    </message>
    <message>
        <source>Hand it over with: %1</source>
        <translation>Entregue o link de volta com: %1</translation>
    </message>
    <message>
        <source>%1%2: sending %3</source>
        <translation>%1%2: enviando %3</translation>
    </message>
    <message>
        <source>%1%2: %3 %, %4 of %5, %6 left, all %7 left</source>
        <translation>%1%2: %3 %, %4 de %5, faltam %6, no total %7</translation>
    </message>
    <message>
        <source>Sent %1 in %2, %3/s.</source>
        <translation>Enviados %1 em %2, %3/s.</translation>
    </message>
    <message>
        <source>Link back (paste it here if the browser does not return by itself):</source>
        <translation>Link de volta (cole-o aqui se o navegador não voltar por si só):</translation>
    </message>
    <message>
        <source>Publish them again?</source>
        <translation>Publicar de novo?</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>The browser came back without a permission. Allow the access there, or cancel here.</source>
        <translation>O navegador voltou sem permissão. Permita o acesso lá ou cancele aqui.</translation>
    </message>
    <message>
        <source>Signed out.</source>
        <translation>Sessão encerrada.</translation>
    </message>
    <message>
        <source>Waiting for your permission in the browser.</source>
        <translation>Aguardando a sua permissão no navegador.</translation>
    </message>
    <message>
        <source>Signing in…</source>
        <translation>Entrando…</translation>
    </message>
    <message>
        <source>it does not take the songs</source>
        <translation>não aceita as músicas</translation>
    </message>
    <message>
        <source>it does not take all songs</source>
        <translation>não aceita todas as músicas</translation>
    </message>
    <message>
        <source>it does not offer to upload the songs</source>
        <translation>não oferece o envio das músicas</translation>
    </message>
    <message>
        <source>Nothing was sent.</source>
        <translation>Nada foi enviado.</translation>
    </message>
    <message>
        <source>The service refused “%1” (%2) and gave no reason.</source>
        <translation>O serviço recusou “%1” (%2) sem dar um motivo.</translation>
    </message>
    <message>
        <source>The service refused the album “%1” (%2) and gave no reason.</source>
        <translation>O serviço recusou o álbum “%1” (%2) sem dar um motivo.</translation>
    </message>
    <message>
        <source>The service refused “%1” (%2): %3</source>
        <translation>O serviço recusou “%1” (%2): %3</translation>
    </message>
    <message>
        <source>The service refused the album “%1” (%2): %3</source>
        <translation>O serviço recusou o álbum “%1” (%2): %3</translation>
    </message>
    <message>
        <source>The service refused “%1” because details are missing: %2.</source>
        <translation>O serviço recusou “%1” porque faltam dados: %2.</translation>
    </message>
    <message>
        <source>The service refused the album “%1” because details are missing: %2.</source>
        <translation>O serviço recusou o álbum “%1” porque faltam dados: %2.</translation>
    </message>
    <message>
        <source>The service refused “%1” because details are missing, but none is empty here: %2</source>
        <translation>O serviço recusou “%1” porque faltam dados, mas nenhum está vazio aqui: %2</translation>
    </message>
    <message>
        <source>The service refused the album “%1” because details are missing, but none is empty here: %2</source>
        <translation>O serviço recusou o álbum “%1” porque faltam dados, mas nenhum está vazio aqui: %2</translation>
    </message>
    <message>
        <source>The service does not accept the stored sign-in any more.</source>
        <translation>O serviço não aceita mais o acesso guardado.</translation>
    </message>
    <message>
        <source>The service refused “%1” because it is too large (%2).</source>
        <translation>O serviço recusou “%1” porque é grande demais (%2).</translation>
    </message>
    <message>
        <source>The service refused the album “%1” because it is too large (%2).</source>
        <translation>O serviço recusou o álbum “%1” porque é grande demais (%2).</translation>
    </message>
    <message>
        <source>The service asks to wait a while before the next upload. “%1” was not taken.</source>
        <translation>O serviço pede para esperar um pouco antes do próximo envio. “%1” não foi aceita.</translation>
    </message>
    <message>
        <source>The service asks to wait a while before the next upload. The album “%1” was not taken.</source>
        <translation>O serviço pede para esperar um pouco antes do próximo envio. O álbum “%1” não foi aceito.</translation>
    </message>
    <message>
        <source>The service has a fault (%2). “%1” was not taken; nothing is wrong with the song.</source>
        <translation>O serviço está com uma falha (%2). “%1” não foi aceita; não há nada de errado com a música.</translation>
    </message>
    <message>
        <source>The service has a fault (%2). The album “%1” was not taken; nothing is wrong with it.</source>
        <translation>O serviço está com uma falha (%2). O álbum “%1” não foi aceito; não há nada de errado com ele.</translation>
    </message>
    <message>
        <source>%1 could not prove its identity: %2.</source>
        <translation>%1 não conseguiu provar a sua identidade: %2.</translation>
    </message>
    <message>
        <source>The service at %1 cannot be reached: %2.</source>
        <translation>Não é possível acessar o serviço em %1: %2.</translation>
    </message>
    <message>
        <source>Stopped after all of “%1” was sent, before the service answered. It may be published.</source>
        <translation>Parado depois de enviar toda “%1”, antes de o serviço responder. Pode ter sido publicada.</translation>
    </message>
    <message>
        <source>Stopped after all of the album “%1” was sent, before the service answered. It may be published.</source>
        <translation>Parado depois de enviar todo o álbum “%1”, antes de o serviço responder. Pode ter sido publicado.</translation>
    </message>
    <message>
        <source>The connection broke after all of “%1” was sent, before the service answered. It may be published.</source>
        <translation>A conexão caiu depois de enviar toda “%1”, antes de o serviço responder. Pode ter sido publicada.</translation>
    </message>
    <message>
        <source>The connection broke after all of the album “%1” was sent, before the service answered. It may be published.</source>
        <translation>A conexão caiu depois de enviar todo o álbum “%1”, antes de o serviço responder. Pode ter sido publicado.</translation>
    </message>
    <message>
        <source>“%1” was stopped at %2 of %3 and did not arrive.</source>
        <translation>“%1” foi parada em %2 de %3 e não chegou.</translation>
    </message>
    <message>
        <source>The album “%1” was stopped at %2 of %3 and did not arrive.</source>
        <translation>O álbum “%1” foi parado em %2 de %3 e não chegou.</translation>
    </message>
    <message>
        <source>The connection broke after %2 of %3. “%1” did not arrive.</source>
        <translation>A conexão caiu depois de %2 de %3. “%1” não chegou.</translation>
    </message>
    <message>
        <source>The connection broke after %2 of %3. The album “%1” did not arrive.</source>
        <translation>A conexão caiu depois de %2 de %3. O álbum “%1” não chegou.</translation>
    </message>
    <message>
        <source>“%2” is no longer there. “%1” was not sent.</source>
        <translation>“%2” não está mais lá. “%1” não foi enviada.</translation>
    </message>
    <message>
        <source>“%2” is no longer there. The album “%1” is not complete.</source>
        <translation>“%2” não está mais lá. O álbum “%1” não está completo.</translation>
    </message>
    <message>
        <source>“%2” changed while it was copied. “%1” was not sent.</source>
        <translation>“%2” mudou enquanto era copiada. “%1” não foi enviada.</translation>
    </message>
    <message>
        <source>“%2” changed while it was copied. The album “%1” is not complete.</source>
        <translation>“%2” mudou enquanto era copiada. O álbum “%1” não está completo.</translation>
    </message>
    <message>
        <source>There is not enough room in “%2”: %3 are needed, %4 are free. “%1” was not sent.</source>
        <translation>Não há espaço suficiente em “%2”: são necessários %3, há %4 livres. “%1” não foi enviada.</translation>
    </message>
    <message>
        <source>There is not enough room in “%2”: %3 are needed, %4 are free. The album “%1” was not sent.</source>
        <translation>Não há espaço suficiente em “%2”: são necessários %3, há %4 livres. O álbum “%1” não foi enviado.</translation>
    </message>
    <message>
        <source>The folder for copies, “%1”, cannot be written.</source>
        <translation>Não é possível gravar na pasta de cópias, “%1”.</translation>
    </message>
    <message>
        <source>“%1” could not be prepared: %2. It was not sent.</source>
        <translation>Não foi possível preparar “%1”: %2. Não foi enviada.</translation>
    </message>
    <message>
        <source>The album “%1” could not be prepared: %2. It was not sent.</source>
        <translation>Não foi possível preparar o álbum “%1”: %2. Não foi enviado.</translation>
    </message>
    <message>
        <source>“%1” was not sent.</source>
        <translation>“%1” não foi enviada.</translation>
    </message>
    <message>
        <source>The album “%1” was not sent.</source>
        <translation>O álbum “%1” não foi enviado.</translation>
    </message>
    <message>
        <source>“%1” could not be prepared. It was not sent.</source>
        <translation>Não foi possível preparar “%1”. Não foi enviada.</translation>
    </message>
    <message>
        <source>The album “%1” could not be prepared. It was not sent.</source>
        <translation>Não foi possível preparar o álbum “%1”. Não foi enviado.</translation>
    </message>
    <message>
        <source>Published the album “%1” with one song.</source>
        <translation>O álbum “%1” com uma música foi publicado.</translation>
    </message>
    <message>
        <source>Published the album “%1” with %2 songs.</source>
        <translation>O álbum “%1” com %2 músicas foi publicado.</translation>
    </message>
    <message>
        <source>Published “%1”.</source>
        <translation>“%1” foi publicada.</translation>
    </message>
    <message>
        <source>Published %1 songs as singles.</source>
        <translation>%1 músicas foram publicadas como singles.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Parado.</translation>
    </message>
    <message>
        <source>%1 of %2 songs are published.</source>
        <translation>%1 de %2 músicas estão publicadas.</translation>
    </message>
    <message>
        <source>Signed in.</source>
        <translation>Sessão iniciada.</translation>
    </message>
    <message>
        <source>Signed in as %1.</source>
        <translation>Sessão iniciada como %1.</translation>
    </message>
    <message>
        <source>Not signed in: the sign-in was given up.</source>
        <translation>Sem sessão: o acesso foi abandonado.</translation>
    </message>
    <message>
        <source>Not signed in: the service did not accept it.</source>
        <translation>Sem sessão: o serviço não aceitou.</translation>
    </message>
    <message>
        <source>Not signed in: the service refused it: %1.</source>
        <translation>Sem sessão: o serviço recusou: %1.</translation>
    </message>
    <message>
        <source>Nothing waits to be sent. Choose “Reset” in the menu of a song first.</source>
        <translation>Nada espera para ser enviado. Escolha antes “Repor” no menu de uma música.</translation>
    </message>
    <message>
        <source>Published %1 of %2 songs. %3</source>
        <translation>%1 de %2 músicas foram publicadas. %3</translation>
    </message>
    <message>
        <source>No module was found. Songs cannot be published.</source>
        <translation>Nenhum módulo foi encontrado. Não é possível publicar músicas.</translation>
    </message>
    <message>
        <source>“%1” %2. Songs cannot be published.</source>
        <translation>“%1” %2. Não é possível publicar músicas.</translation>
    </message>
    <message>
        <source>album title</source>
        <translation>título do álbum</translation>
    </message>
    <message>
        <source>album artist</source>
        <translation>artista do álbum</translation>
    </message>
    <message>
        <source>genre</source>
        <translation>gênero</translation>
    </message>
    <message>
        <source>song title</source>
        <translation>título da música</translation>
    </message>
    <message>
        <source>song artist</source>
        <translation>artista da música</translation>
    </message>
    <message>
        <source>“%1” lacks: %2.</source>
        <translation>Falta em “%1”: %2.</translation>
    </message>
    <message>
        <source>The album lacks: %1.</source>
        <translation>Falta no álbum: %1.</translation>
    </message>
    <message>
        <source>The album “%1” lacks: %2.</source>
        <translation>Falta no álbum “%1”: %2.</translation>
    </message>
    <message>
        <source>The service does not know the genre “%1”.</source>
        <translation>O serviço não conhece o gênero “%1”.</translation>
    </message>
    <message>
        <source>The service does not know the genre “%1”. Nearest: %2.</source>
        <translation>O serviço não conhece o gênero “%1”. Mais próximo: %2.</translation>
    </message>
    <message>
        <source>“%1” has the genre “%2”, which the service does not know.</source>
        <translation>“%1” tem o gênero “%2”, que o serviço não conhece.</translation>
    </message>
    <message>
        <source>“%1” has the genre “%2”, which the service does not know. Nearest: %3.</source>
        <translation>“%1” tem o gênero “%2”, que o serviço não conhece. Mais próximo: %3.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is not there.</source>
        <translation>“%1” não pode ser publicada: não está lá.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it cannot be read.</source>
        <translation>“%1” não pode ser publicada: não pode ser lida.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it cannot be read (%2).</source>
        <translation>“%1” não pode ser publicada: não pode ser lida (%2).</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is not a file.</source>
        <translation>“%1” não pode ser publicada: não é um arquivo.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is %2, not %3 as its name says.</source>
        <translation>“%1” não pode ser publicada: é %2, e não %3 como diz o nome.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is cut off.</source>
        <translation>“%1” não pode ser publicada: está cortada.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is cut off: %2 of %3.</source>
        <translation>“%1” não pode ser publicada: está cortada: %2 de %3.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: its sample rate of %2 cannot be right.</source>
        <translation>“%1” não pode ser publicada: a taxa de amostragem de %2 não pode estar certa.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it holds samples that are not numbers.</source>
        <translation>“%1” não pode ser publicada: contém amostras que não são números.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: its name is not UTF-8.</source>
        <translation>“%1” não pode ser publicada: o nome não é UTF-8.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: its name holds control characters.</source>
        <translation>“%1” não pode ser publicada: o nome contém caracteres de controle.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it would have to become %2, which is not possible.</source>
        <translation>“%1” não pode ser publicada: teria de virar %2, o que não é possível.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it holds no audio that can be read.</source>
        <translation>“%1” não pode ser publicada: não contém áudio que possa ser lido.</translation>
    </message>
    <message>
        <source>The settings of %1 cannot be read from “%2”.</source>
        <translation>Não é possível ler as configurações de %1 em “%2”.</translation>
    </message>
    <message>
        <source>%1 is not set up: %2 is wrong in “%3”, section [%4].</source>
        <translation>%1 não está configurado: %2 está incorreto em “%3”, seção [%4].</translation>
    </message>
    <message>
        <source>%1 is not set up: %2 is missing in “%3”, section [%4].</source>
        <translation>%1 não está configurado: falta %2 em “%3”, seção [%4].</translation>
    </message>
    <message>
        <source>“%1” is there twice.</source>
        <translation>“%1” está duas vezes.</translation>
    </message>
    <message>
        <source>“%1” and “%2” have the same file name; in an album each song needs its own.</source>
        <translation>“%1” e “%2” têm o mesmo nome de arquivo; em um álbum cada música precisa do seu.</translation>
    </message>
    <message>
        <source>“%1” and “%2” both have the number %3.</source>
        <translation>“%1” e “%2” têm ambas o número %3.</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>faltam %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>“%1” is sent. Waiting for the service&apos;s answer.</source>
        <translation>“%1” foi enviada. Aguardando a resposta do serviço.</translation>
    </message>
    <message>
        <source>Sending “%1”: no bytes have left for %2 s. Waiting for the connection.</source>
        <translation>Enviando “%1”: nenhum byte saiu há %2 s. Aguardando a conexão.</translation>
    </message>
    <message>
        <source>Sending the album “%1”</source>
        <translation>Enviando o álbum “%1”</translation>
    </message>
    <message>
        <source>Sending “%1”, %2 of %3</source>
        <translation>Enviando “%1”, %2 de %3</translation>
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
        <translation>Tudo: %1</translation>
    </message>
    <message>
        <source>Preparing one song: %1 of %2. Nothing is sent yet.</source>
        <translation>Preparando uma música: %1 de %2. Nada foi enviado ainda.</translation>
    </message>
    <message>
        <source>Preparing %1 songs: %2 of %3. Nothing is sent yet.</source>
        <translation>Preparando %1 músicas: %2 de %3. Nada foi enviado ainda.</translation>
    </message>
    <message>
        <source>An upload is running.</source>
        <translation>Um envio está em andamento.</translation>
    </message>
    <message>
        <source>Hand over songs first.</source>
        <translation>Primeiro passe músicas ao painel.</translation>
    </message>
    <message>
        <source>Sign in first.</source>
        <translation>Primeiro entre na conta.</translation>
    </message>
    <message>
        <source>All songs are published.</source>
        <translation>Todas as músicas estão publicadas.</translation>
    </message>
    <message>
        <source>Run the same command again.</source>
        <translation>Execute o mesmo comando de novo.</translation>
    </message>
    <message>
        <source>Run the same command with the songs that are not published to send the rest.</source>
        <translation>Execute o mesmo comando com as músicas não publicadas para enviar o resto.</translation>
    </message>
    <message>
        <source>Try again later.</source>
        <translation>Tente de novo mais tarde.</translation>
    </message>
    <message>
        <source>Choose one with --genre.</source>
        <translation>Escolha um com --genre.</translation>
    </message>
    <message>
        <source>Name it once.</source>
        <translation>Nomeie uma só vez.</translation>
    </message>
    <message>
        <source>Rename one of them.</source>
        <translation>Renomeie um deles.</translation>
    </message>
    <message>
        <source>--skip-unreadable leaves it out.</source>
        <translation>--skip-unreadable o omite.</translation>
    </message>
    <message>
        <source>Put it back, then run the same command again.</source>
        <translation>Coloque-o de volta e execute o mesmo comando de novo.</translation>
    </message>
    <message>
        <source>Make room, or set TMPDIR to another folder.</source>
        <translation>Abra espaço ou indique outra pasta em TMPDIR.</translation>
    </message>
    <message>
        <source>Set TMPDIR to another folder.</source>
        <translation>Indique outra pasta em TMPDIR.</translation>
    </message>
    <message>
        <source>--track-number sets it.</source>
        <translation>--track-number o define.</translation>
    </message>
    <message>
        <source>Look at your account page before you send it again.</source>
        <translation>Veja a página da sua conta antes de enviar de novo.</translation>
    </message>
    <message>
        <source>Check ServerURL and this computer&apos;s clock.</source>
        <translation>Verifique ServerURL e o relógio deste computador.</translation>
    </message>
    <message>
        <source>xbrhost sign-in renews it.</source>
        <translation>xbrhost sign-in renova.</translation>
    </message>
    <message>
        <source>xbrhost sign-in signs in.</source>
        <translation>xbrhost sign-in inicia a sessão.</translation>
    </message>
    <message>
        <source>--module names one.</source>
        <translation>--module indica um.</translation>
    </message>
    <message>
        <source>Add it with %1.</source>
        <translation>Adicione com %1.</translation>
    </message>
    <message>
        <source>Add them with %1.</source>
        <translation>Adicione com %1.</translation>
    </message>
    <message>
        <source>The service asks to wait %2 before the next upload. “%1” was not taken.</source>
        <translation>O serviço pede para esperar %2 antes do próximo envio. “%1” não foi aceita.</translation>
    </message>
    <message>
        <source>The service asks to wait %2 before the next upload. The album “%1” was not taken.</source>
        <translation>O serviço pede para esperar %2 antes do próximo envio. O álbum “%1” não foi aceito.</translation>
    </message>
    <message>
        <source>Waiting for the keyring to be unlocked.</source>
        <translation>Aguardando o desbloqueio do chaveiro.</translation>
    </message>
    <message>
        <source>Waiting for the keyring to answer.</source>
        <translation>Aguardando a resposta do chaveiro.</translation>
    </message>
    <message>
        <source>The web browser could not be started: %1. Copy the address and open it in a browser.</source>
        <translation>Não foi possível iniciar o navegador: %1. Copie o endereço e abra-o num navegador.</translation>
    </message>
    <message>
        <source>The web browser could not be started: %1.</source>
        <translation>Não foi possível iniciar o navegador: %1.</translation>
    </message>
    <message>
        <source>Signed in as %1, until the program ends: this computer has no keyring.</source>
        <translation>Sessão iniciada como %1, até o programa terminar: este computador não tem chaveiro.</translation>
    </message>
    <message>
        <source>Not signed in: this computer has no keyring.</source>
        <translation>Sem sessão: este computador não tem chaveiro.</translation>
    </message>
    <message>
        <source>No keyring can be reached from here: nothing was removed.</source>
        <translation>Nenhum chaveiro pode ser acessado daqui: nada foi removido.</translation>
    </message>
    <message>
        <source>Signed in as %1, until the program ends: the keyring was not unlocked.</source>
        <translation>Sessão iniciada como %1, até o programa terminar: o chaveiro não foi desbloqueado.</translation>
    </message>
    <message>
        <source>The keyring was not unlocked: the stored sign-in cannot be read.</source>
        <translation>O chaveiro não foi desbloqueado: a sessão guardada não pode ser lida.</translation>
    </message>
    <message>
        <source>The keyring was not unlocked: the stored sign-in may still be there.</source>
        <translation>O chaveiro não foi desbloqueado: a sessão guardada talvez ainda esteja lá.</translation>
    </message>
    <message>
        <source>Signed in as %1, until the program ends: the keyring does not answer.</source>
        <translation>Sessão iniciada como %1, até o programa terminar: o chaveiro não responde.</translation>
    </message>
    <message>
        <source>The keyring does not answer: the stored sign-in cannot be read.</source>
        <translation>O chaveiro não responde: a sessão guardada não pode ser lida.</translation>
    </message>
    <message>
        <source>The keyring does not answer: the stored sign-in may still be there.</source>
        <translation>O chaveiro não responde: a sessão guardada talvez ainda esteja lá.</translation>
    </message>
    <message>
        <source>The service does not say who is signed in; it may not be %1.</source>
        <translation>O serviço não diz quem iniciou a sessão; pode não ser %1.</translation>
    </message>
    <message>
        <source>Signed in as %1, not as %2.</source>
        <translation>Sessão iniciada como %1, não como %2.</translation>
    </message>
    <message>
        <source>A sign-in is stored, but the service could not be asked: %1.</source>
        <translation>Há uma sessão guardada, mas não foi possível perguntar ao serviço: %1.</translation>
    </message>
    <message>
        <source>Not signed in: the service sent an answer that cannot be used.</source>
        <translation>Sem sessão: o serviço enviou uma resposta que não pode ser usada.</translation>
    </message>
    <message>
        <source>Not signed in.</source>
        <translation>Sem sessão.</translation>
    </message>
    <message>
        <source>This is not a link back: it begins with “%1:”.</source>
        <translation>Isto não é um link de retorno: começa com “%1:”.</translation>
    </message>
    <message>
        <source>This link back belongs to another sign-in. Open the address again.</source>
        <translation>Este link de retorno é de outro acesso. Abra o endereço de novo.</translation>
    </message>
    <message>
        <source>Nobody was signed in.</source>
        <translation>Ninguém tinha sessão iniciada.</translation>
    </message>
    <message>
        <source>cannot sign out</source>
        <translation>não pode encerrar a sessão</translation>
    </message>
    <message>
        <source>Unlock it, then run the same command again.</source>
        <translation>Desbloqueie-o e execute o mesmo comando novamente.</translation>
    </message>
    <message>
        <source>xbrhost sign-out signs out.</source>
        <translation>xbrhost sign-out termina a sessão.</translation>
    </message>
    <message>
        <source>it answered %1</source>
        <translation>ele respondeu %1</translation>
    </message>
    <message>
        <source>%1 is not set up: %2 is not encrypted, and only this computer may be reached that way.</source>
        <translation>%1 não está configurado: %2 não é cifrado, e só este computador pode ser acessado assim.</translation>
    </message>
    <message>
        <source>--again sends them again.</source>
        <translation>--again envia-as de novo.</translation>
    </message>
    <message>
        <source>%1 of %2 songs were published from this computer before.</source>
        <translation>%1 de %2 músicas já foram publicadas a partir deste computador.</translation>
    </message>
    <message>
        <source>“%1” was published from this computer on %2.</source>
        <translation>“%1” foi publicada a partir deste computador em %2.</translation>
    </message>
</context>
<context>
    <name>xbr::host::AboutDialog</name>
    <message>
        <source>About xbrhost</source>
        <translation>Acerca do xbrhost</translation>
    </message>
    <message>
        <source>Publishes finished songs through the modules of a workstation.</source>
        <translation>Publica músicas prontas através dos módulos de uma estação de áudio.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>Co&amp;piar</translation>
    </message>
    <message>
        <source>Copy the versions</source>
        <translation>Copiar as versões</translation>
    </message>
</context>
<context>
    <name>xbr::host::DesktopNotification</name>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
</context>
<context>
    <name>xbr::host::DockTitle</name>
    <message>
        <source>Float or dock</source>
        <translation>Soltar ou encaixar</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
</context>
<context>
    <name>xbr::host::EmptyState</name>
    <message>
        <source>&amp;Add Songs…</source>
        <translation>&amp;Adicionar músicas…</translation>
    </message>
    <message>
        <source>Drop your finished songs here</source>
        <translation>Solte aqui as músicas prontas</translation>
    </message>
    <message>
        <source>WAV, AIFF, FLAC, MP3 or Ogg, one by one or a whole folder</source>
        <translation>WAV, AIFF, FLAC, MP3 ou Ogg, uma a uma ou uma pasta inteira</translation>
    </message>
</context>
<context>
    <name>xbr::host::FileSelector</name>
    <message>
        <source>All usable files</source>
        <translation>Todos os arquivos utilizáveis</translation>
    </message>
    <message>
        <source>Choose Files</source>
        <translation>Escolher arquivos</translation>
    </message>
</context>
<context>
    <name>xbr::host::GadgetDock</name>
    <message>
        <source>The form of this panel cannot be shown.</source>
        <translation>Não é possível mostrar o formulário deste painel.</translation>
    </message>
</context>
<context>
    <name>xbr::host::HandOver</name>
    <message numerus="yes">
        <source>It holds edits of %n song(s) that have not been sent.</source>
        <translation>
            <numerusform>Ele contém alterações de %n música que não foram enviadas.</numerusform>
            <numerusform>Ele contém alterações de %n músicas que não foram enviadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>It holds the results of the last upload.</source>
        <translation>Ele contém os resultados do último envio.</translation>
    </message>
    <message>
        <source>Replace the songs in the panel?</source>
        <translation>Substituir as músicas do painel?</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Manter</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Substituir</translation>
    </message>
    <message>
        <source>The other songs can be handed over without them.</source>
        <translation>As outras músicas podem ser passadas sem elas.</translation>
    </message>
    <message>
        <source>Leave out songs?</source>
        <translation>Deixar músicas de fora?</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Leave out</source>
        <translation>&amp;Deixar de fora</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) handed over to the panel; nothing is sent yet. Check the details there, then upload.</source>
        <translation>
            <numerusform>%n música passada ao painel; nada foi enviado ainda. Confira os detalhes lá e depois envie.</numerusform>
            <numerusform>%n músicas passadas ao painel; nada foi enviado ainda. Confira os detalhes lá e depois envie.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) lack details that the service needs. “%2”: %3.</source>
        <translation>
            <numerusform>Faltam a %1 de %n música detalhes de que o serviço precisa. “%2”: %3.</numerusform>
            <numerusform>Faltam a %1 de %n músicas detalhes de que o serviço precisa. “%2”: %3.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::Header</name>
    <message>
        <source>Songs</source>
        <translation>Músicas</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Nenhuma ainda</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s)</source>
        <translation>
            <numerusform>%n música</numerusform>
            <numerusform>%n músicas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::KeyringSheet</name>
    <message>
        <source>Keyring</source>
        <translation>Chaveiro</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>xbr::host::MainWindow</name>
    <message>
        <source>Songs – xbrhost</source>
        <translation>Músicas – xbrhost</translation>
    </message>
    <message>
        <source>Add Songs</source>
        <translation>Adicionar músicas</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Some songs are still being read; try again in a moment.</source>
        <translation>Algumas músicas ainda estão sendo lidas; tente de novo em instantes.</translation>
    </message>
    <message>
        <source>Add songs first.</source>
        <translation>Adicione músicas primeiro.</translation>
    </message>
    <message>
        <source>Wait until the upload that runs has ended.</source>
        <translation>Aguarde o fim do envio em andamento.</translation>
    </message>
    <message>
        <source>&amp;Stop and Quit</source>
        <translation>&amp;Interromper e sair</translation>
    </message>
    <message>
        <source>&amp;Keep Uploading</source>
        <translation>&amp;Continuar o envio</translation>
    </message>
    <message>
        <source>Hands the selected songs, or all, over to the panel; nothing is sent yet</source>
        <translation>Passa as músicas selecionadas, ou todas, ao painel; nada é enviado ainda</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) in the panel have edits that were not sent; they would be lost. The list comes back at the next start.</source>
        <translation>
            <numerusform>%n música no painel tem alterações não enviadas; elas se perderiam. A lista volta na próxima abertura.</numerusform>
            <numerusform>%n músicas no painel têm alterações não enviadas; elas se perderiam. A lista volta na próxima abertura.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop the upload?</source>
        <translation>Parar o envio?</translation>
    </message>
    <message>
        <source>Quit without publishing?</source>
        <translation>Sair sem publicar?</translation>
    </message>
    <message>
        <source>&amp;Keep Editing</source>
        <translation>&amp;Continuar editando</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
</context>
<context>
    <name>xbr::host::PanelMemory</name>
    <message>
        <source>Track number</source>
        <translation>Número da faixa</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) removed from the panel.</source>
        <translation>
            <numerusform>%n música removida do painel.</numerusform>
            <numerusform>%n músicas removidas do painel.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 changed in %n song(s).</source>
        <translation>
            <numerusform>%1 mudou em %n música.</numerusform>
            <numerusform>%1 mudou em %n músicas.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::PanelNotices</name>
    <message numerus="yes">
        <source>%1 of %n song(s) are published; the rest would not be.</source>
        <translation>
            <numerusform>%1 de %n música está publicada; o resto não estaria.</numerusform>
            <numerusform>%1 de %n músicas estão publicadas; o resto não estaria.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is being sent.</source>
        <translation>“%1” está sendo enviada.</translation>
    </message>
    <message>
        <source>Published %1</source>
        <translation>Publicada em %1</translation>
    </message>
    <message>
        <source>Published %1 as %2</source>
        <translation>Publicada em %1 como %2</translation>
    </message>
    <message>
        <source>Send without these details?</source>
        <translation>Enviar sem esses detalhes?</translation>
    </message>
    <message>
        <source>“%1”: %2. The service will probably refuse it. Nothing is sent yet.</source>
        <translation>“%1”: %2. O serviço provavelmente vai recusá-la. Nada foi enviado ainda.</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>Send &amp;Anyway</source>
        <translation>Enviar &amp;mesmo assim</translation>
    </message>
    <message>
        <source>Publish again?</source>
        <translation>Publicar de novo?</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Publish &amp;Again</source>
        <translation>Publicar de &amp;novo</translation>
    </message>
    <message>
        <source>&amp;Leave them out</source>
        <translation>&amp;Deixá-las de fora</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) were published from this computer before.</source>
        <translation>
            <numerusform>%1 de %n música já foi publicada a partir deste computador.</numerusform>
            <numerusform>%1 de %n músicas já foram publicadas a partir deste computador.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Tentar de novo</translation>
    </message>
    <message>
        <source>A&amp;ccount page</source>
        <translation>Página da &amp;conta</translation>
    </message>
    <message>
        <source>&amp;Leave out</source>
        <translation>&amp;Deixar de fora</translation>
    </message>
    <message>
        <source>Sign &amp;in</source>
        <translation>&amp;Entrar</translation>
    </message>
</context>
<context>
    <name>xbr::host::ProgressRow</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Parar</translation>
    </message>
    <message>
        <source>End the upload; what has arrived stays published</source>
        <translation>Encerrar o envio; o que chegou continua publicado</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
</context>
<context>
    <name>xbr::host::ProgressSheet</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Working on</source>
        <translation>Trabalhando em</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Interrompendo…</translation>
    </message>
</context>
<context>
    <name>xbr::host::Selection</name>
    <message>
        <source>“%1” is on its way and cannot be changed now.</source>
        <translation>“%1” está a caminho e não pode ser alterada agora.</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) selected: an edit changes all of them.</source>
        <translation>
            <numerusform>%n música selecionada: uma alteração muda todas.</numerusform>
            <numerusform>%n músicas selecionadas: uma alteração muda todas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>≠ %n value(s)</source>
        <translation>
            <numerusform>≠ %n valor</numerusform>
            <numerusform>≠ %n valores</numerusform>
        </translation>
    </message>
    <message>
        <source>same</source>
        <translation>igual</translation>
    </message>
    <message numerus="yes">
        <source>%n different value(s): %1</source>
        <translation>
            <numerusform>%n valor diferente: %1</numerusform>
            <numerusform>%n valores diferentes: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::SignInStrip</name>
    <message>
        <source>Copy the address</source>
        <translation>Copiar o endereço</translation>
    </message>
    <message>
        <source>Link back</source>
        <translation>Link de retorno</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Nothing happened?</source>
        <translation>Nada aconteceu?</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
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
        <translation>Arquivos de áudio</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongCommands</name>
    <message numerus="yes">
        <source>%n song(s) added.</source>
        <translation>
            <numerusform>%n música adicionada.</numerusform>
            <numerusform>%n músicas adicionadas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) added; %1 were in the list already.</source>
        <translation>
            <numerusform>%n música adicionada; %1 já na lista.</numerusform>
            <numerusform>%n músicas adicionadas; %1 já na lista.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) removed from the list; the files stay.</source>
        <translation>
            <numerusform>%n música removida da lista; o arquivo fica.</numerusform>
            <numerusform>%n músicas removidas da lista; os arquivos ficam.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) need a look before they can be published. %2</source>
        <translation>
            <numerusform>%1 de %n música precisa de atenção antes de ser publicada. %2</numerusform>
            <numerusform>%1 de %n músicas precisam de atenção antes de serem publicadas. %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) from last time.</source>
        <translation>
            <numerusform>%n música da última vez.</numerusform>
            <numerusform>%n músicas da última vez.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) from last time; %1 no longer there.</source>
        <translation>
            <numerusform>%n música da última vez; %1 não está mais lá.</numerusform>
            <numerusform>%n músicas da última vez; %1 não está mais lá.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n arquivo</numerusform>
            <numerusform>%n arquivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Start &amp;Empty</source>
        <translation>Começar &amp;vazio</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongListModel</name>
    <message>
        <source>Reading…</source>
        <translation>Lendo…</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>Artista do álbum</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Gênero</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duração</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>Número da faixa</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marca</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongView</name>
    <message>
        <source>Songs</source>
        <translation>Músicas</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colunas</translation>
    </message>
</context>
<context>
    <name>xbr::host::StatusLine</name>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Dispensar</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>Pronto.</translation>
    </message>
    <message>
        <source>Show each song</source>
        <translation>Mostrar cada música</translation>
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
        <translation>&amp;Publicar</translation>
    </message>
    <message>
        <source>&amp;About xbrhost</source>
        <translation>&amp;Acerca do xbrhost</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>&amp;Add Songs…</source>
        <translation>&amp;Adicionar músicas…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Add songs (%1)</source>
        <translation>Adicionar músicas (%1)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Sair</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Edit Cell</source>
        <translation>&amp;Editar célula</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Remover</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Remove the selected songs from the list; the files stay</source>
        <translation>Remover da lista as músicas selecionadas; os arquivos permanecem</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Mover para &amp;cima</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Mover para &amp;baixo</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Selecionar &amp;tudo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>E&amp;xibir</translation>
    </message>
    <message>
        <source>&amp;Next Area</source>
        <translation>&amp;Próxima área</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Aparência</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>&amp;Redefinir disposição</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Como a área de &amp;trabalho</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>Da&amp;rk</source>
        <translation>&amp;Escuro</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>Red&amp;o</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>&amp;Next Problem</source>
        <translation>&amp;Próximo problema</translation>
    </message>
    <message>
        <source>&amp;Previous Problem</source>
        <translation>Problema &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Parar</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Tentar de novo</translation>
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
        <translation>Não é possível receber a resposta do navegador à entrada: %1.</translation>
    </message>
</context>
</TS>
