<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
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
        <source>Publish the selected songs, or all</source>
        <translation>Publicar as músicas selecionadas, ou todas</translation>
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
        <source>Stop the Upload?</source>
        <translation>Interromper o envio?</translation>
    </message>
    <message>
        <source>An upload is running.</source>
        <translation>Há um envio em andamento.</translation>
    </message>
    <message>
        <source>When you quit now, it is stopped; songs that have not arrived are not published.</source>
        <translation>Se sair agora, ele é interrompido; as músicas que não chegaram não são publicadas.</translation>
    </message>
    <message>
        <source>&amp;Stop and Quit</source>
        <translation>&amp;Interromper e sair</translation>
    </message>
    <message>
        <source>&amp;Keep Uploading</source>
        <translation>&amp;Continuar o envio</translation>
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
    <name>xbr::host::Publishing</name>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>Não é possível ler “%1”.</translation>
    </message>
    <message>
        <source>“%1” is of a kind that cannot be published.</source>
        <translation>“%1” é de um tipo que não pode ser publicado.</translation>
    </message>
    <message>
        <source>Rendering was cancelled; nothing was handed over.</source>
        <translation>A renderização foi cancelada; nada foi entregue.</translation>
    </message>
    <message>
        <source>“%1” cannot be used.</source>
        <translation>Não é possível usar “%1”.</translation>
    </message>
    <message>
        <source>“%1” does not take the songs.</source>
        <translation>“%1” não aceita as músicas.</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) handed over. Complete the information, then upload.</source>
        <translation>
            <numerusform>%n música entregue. Complete as informações e envie.</numerusform>
            <numerusform>%n músicas entregues. Complete as informações e envie.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::ServiceWatch</name>
    <message>
        <source>Disconnected.</source>
        <translation>Desconectado.</translation>
    </message>
    <message>
        <source>Continue in your web browser: allow the access there.</source>
        <translation>Continue no navegador: permita o acesso lá.</translation>
    </message>
    <message>
        <source>Signing in…</source>
        <translation>Entrando…</translation>
    </message>
    <message>
        <source>Connected.</source>
        <translation>Conectado.</translation>
    </message>
    <message>
        <source>Uploading “%1”: %2 %</source>
        <translation>Enviando “%1”: %2 %</translation>
    </message>
    <message>
        <source>Your sign-in has expired or was withdrawn. Disconnect, then connect again.</source>
        <translation>Sua sessão expirou ou foi revogada. Desconecte e conecte de novo.</translation>
    </message>
    <message>
        <source>Connected as %1.</source>
        <translation>Conectado como %1.</translation>
    </message>
    <message>
        <source>The service did not accept the sign-in. Try to connect again.</source>
        <translation>O serviço não aceitou a entrada. Tente conectar de novo.</translation>
    </message>
    <message>
        <source>Not connected yet: the browser has not come back with a permission.</source>
        <translation>Ainda sem conexão: o navegador não trouxe a permissão.</translation>
    </message>
    <message>
        <source>The upload was cancelled before anything was sent.</source>
        <translation>O envio foi cancelado antes que algo saísse.</translation>
    </message>
    <message numerus="yes">
        <source>Published: %n song(s).</source>
        <translation>
            <numerusform>Publicada: %n música.</numerusform>
            <numerusform>Publicadas: %n músicas.</numerusform>
        </translation>
    </message>
    <message>
        <source>The service needs more information: fill in the marked fields, then upload again.</source>
        <translation>O serviço precisa de mais informações: preencha os campos marcados e envie de novo.</translation>
    </message>
    <message>
        <source>Nothing was sent: the upload could not be prepared.</source>
        <translation>Nada foi enviado: não foi possível preparar o envio.</translation>
    </message>
    <message>
        <source>Nothing was sent: %1</source>
        <translation>Nada foi enviado: %1</translation>
    </message>
    <message numerus="yes">
        <source>The service did not take %n song(s). Try again later.</source>
        <translation>
            <numerusform>O serviço não aceitou %n música. Tente mais tarde.</numerusform>
            <numerusform>O serviço não aceitou %n músicas. Tente mais tarde.</numerusform>
        </translation>
    </message>
    <message>
        <source>Uploading…</source>
        <translation>Enviando…</translation>
    </message>
    <message>
        <source>The browser came back without a permission. Allow the access there, or cancel here.</source>
        <translation>O navegador voltou sem permissão. Permita o acesso lá ou cancele aqui.</translation>
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
        <source>This is no audio that can be read.</source>
        <translation>Não é um áudio que se possa ler.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Não é possível ler o arquivo.</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Arquivos de áudio</translation>
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
</context>
<context>
    <name>xbr::host::WindowFront</name>
    <message>
        <source>%1, border %2.%3</source>
        <translation>%1, interface %2.%3</translation>
    </message>
    <message>
        <source>Songs cannot be published: %1</source>
        <translation>Não é possível publicar músicas: %1</translation>
    </message>
    <message>
        <source>Songs cannot be published: no module was found.</source>
        <translation>Não é possível publicar músicas: nenhum módulo foi encontrado.</translation>
    </message>
    <message>
        <source>The browser&apos;s answer to a sign-in cannot be received: %1</source>
        <translation>Não é possível receber a resposta do navegador à entrada: %1</translation>
    </message>
</context>
<context>
    <name>xbr::host::Wording</name>
    <message>
        <source>The settings of %1 cannot be read from “%2”.</source>
        <translation>Não é possível ler as configurações de %1 em “%2”.</translation>
    </message>
    <message>
        <source>%1 is not set up yet. Put %2 into “%3”, section [%4], one “key = value” a line.</source>
        <translation>%1 ainda não está configurado. Coloque %2 em “%3”, seção [%4], um “chave = valor” por linha.</translation>
    </message>
    <message>
        <source>%1 is not set up properly. Correct %2 in “%3”, section [%4].</source>
        <translation>%1 não está bem configurado. Corrija %2 em “%3”, seção [%4].</translation>
    </message>
</context>
</TS>
